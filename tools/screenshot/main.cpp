// petalgarden-screenshot OUT.png [deals]: plays deals headless against the computer, then
// draws the real main window as it stands when the last deal's result is shown (banners,
// piles, yaku rows), offscreen. For the README and for reviews of the art.
#include <QApplication>

#include "Policy.h"
#include "SimPlay.h"
#include "TempFolder.h"
#include "assets/PictureStore.h"
#include "platform/FatalError.h"
#include "platform/Form.h"
#include "shell/MainWindow.h"
#include "shell/Program.h"
#include "platform/qt/QtHost.h"
#include "platform/sim/SimHost.h"

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    const QString out = argc > 1 ? QString::fromLocal8Bit(argv[1]) : QStringLiteral("screenshot.png");
    const int deals = argc > 2 ? std::max(1, std::atoi(argv[2])) : 1;
    petal::sim::TempFolder temp;
    const std::filesystem::path& folder = temp.path();

    petal::SimHost sim(folder);
    sim.setClock(19, 30, 0);
    petal::Program program(sim);
    petal::QtHost viewHost(folder);  // the window needs a Qt host; the game runs on the simulated one
    petal::PictureStore pictures;
    petal::MainWindow window(program.frmMain, viewHost, pictures);
    petal::sim::Policy policy(true, 5);
    int ended = 0;
    bool saved = false;
    sim.onForm = [](petal::Form& form) { form.Unload(); };
    sim.onMsgBox = [&](const petal::MsgBox& box) {
        if (box.text != "Do you want to play again?" || ++ended < deals) return petal::MsgResult::Yes;
        window.sync();
        saved = window.grab().save(out);
        return petal::MsgResult::No;
    };
    petal::runHandler(sim, [&] {
        program.Main();
        program.frmMain.dealer.imgDeck_Click();
    });
    while (!sim.ending()) {
        bool acted = false;
        petal::runHandler(sim, [&] { acted = petal::sim::localMove(program.frmMain, policy); });
        if (!acted && !sim.step()) break;
    }
    return saved ? 0 : 1;
}
