#pragma once
// The program's run, once the command line is read: the Qt host, the core's program and the
// main window that draws it, until the program ends. A test runs it in a folder of its own,
// with a user of its own that comes in before the splash.
#include <filesystem>
#include <functional>

namespace petal {

class MainWindow;
class Program;
class QtHost;
struct CommandLine;

using ProgramStarted = std::function<void(QtHost&, Program&, MainWindow&)>;

// The exit status. Needs the QApplication made.
int runProgram(const CommandLine& line, const std::filesystem::path& folder = {}, const ProgramStarted& started = {});

}  // namespace petal
