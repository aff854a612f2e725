// One copy of the program with a scripted user: the program's own run, in a folder of its own,
// on the program's command line and the user's options (TwinPlan).
#include <QApplication>
#include <cstdio>
#include <memory>

#include "TwinPlan.h"
#include "TwinUser.h"
#include "shell/CommandLine.h"
#include "shell/ProgramRun.h"

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    std::vector<std::string> args;
    for (const QString& arg : QApplication::arguments().mid(1)) args.push_back(arg.toStdString());
    const petal::twin::TwinPlan plan = petal::twin::readTwinPlan(args);
    const petal::CommandLine line = petal::parseCommandLine(args);
    if (!line.error.empty() || plan.folder.empty()) {
        std::fprintf(stderr, "petalgarden-twin: %s\n", line.error.empty() ? "--folder is needed" : line.error.c_str());
        return 2;
    }
    std::unique_ptr<petal::twin::TwinUser> user;
    return petal::runProgram(line, plan.folder, [&](petal::QtHost& host, petal::Program& program, petal::MainWindow& window) {
        user = std::make_unique<petal::twin::TwinUser>(host, program, window, plan);
    });
}
