// The program's entry: the usage, or the program run as the command line asks.
#include <QApplication>
#include <cstdio>
#include <cstring>

#include "shell/CommandLine.h"
#include "shell/ProgramRun.h"

int main(int argc, char** argv) {
    // The usage is printed where no display may be: before Qt opens one.
    for (int i = 1; i < argc; ++i)
        if (std::strcmp(argv[i], "--help") == 0 || std::strcmp(argv[i], "-h") == 0) {
            std::fputs(petal::commandLineUsage().c_str(), stdout);
            return 0;
        }
    QApplication app(argc, argv);
    std::vector<std::string> args;
    for (const QString& arg : QApplication::arguments().mid(1)) args.push_back(arg.toStdString());
    const petal::CommandLine line = petal::parseCommandLine(args);
    if (!line.error.empty()) {
        std::fprintf(stderr, "petalgarden: %s\n\n%s", line.error.c_str(), petal::commandLineUsage().c_str());
        return 2;
    }
    return petal::runProgram(line);
}
