#include "NetFixture.h"

#include <algorithm>
#include <memory>

#include "SimPlay.h"
#include "Policy.h"
#include "net/FrmConnectionStatus.h"
#include "scoring/FrmScoreCard.h"
#include "shell/FrmSetup.h"

namespace petal::test {

NetFixture::Side::Side(SimWorld& world) : host(dir.path()) {
    world.join(host);
    program = std::make_unique<Program>(host);
    program->frmMain.events = &ends;
    host.onMsgBox = [this](const MsgBox& box) {
        const auto it = answers.find(box.title);
        if (it != answers.end()) return it->second;
        throw UnexpectedPrompt("unexpected box \"" + box.text + "\" (" + box.title + ")");
    };
    onForm = [this](Form& form) {
        if (auto* setup = dynamic_cast<FrmSetup*>(&form)) {
            setup->selectGame(mode);
            if (mode == 2) setup->setText(setup->txtHostIP, "127.0.0.1");
            setup->cmdOK_Click();
        } else if (auto* status = dynamic_cast<FrmConnectionStatus*>(&form)) {
            host.waitUntil([status] { return !status->loaded(); });
        } else if (auto* card = dynamic_cast<FrmScoreCard*>(&form)) {
            card->cmdOK_Click();
        }
    };
    host.onForm = [this](Form& form) {
        formsShown.push_back(form.formName());
        onForm(form);
        if (form.loaded()) form.Unload();
    };
    answers = {{"Connection Successful", MsgResult::OK}};
}

std::vector<std::string> NetFixture::Side::titles() const {
    std::vector<std::string> out;
    for (const MsgBox& box : host.shownBoxes()) out.push_back(box.title);
    return out;
}

long NetFixture::Side::boxes(const std::string& title) const {
    const auto all = titles();
    return std::count(all.begin(), all.end(), title);
}

bool NetFixture::Side::shown(const std::string& text) const {
    for (const MsgBox& box : host.shownBoxes())
        if (box.text == text) return true;
    return false;
}

NetFixture::NetFixture() : host(world), client(world) {
    host.mode = 1;
    client.mode = 2;
    act(host, [this] { host.program->Main(); });
    act(client, [this] { client.program->Main(); });
}

void NetFixture::hostOptions(int gameType, int rounds, bool yaku) {
    act(host, [&] { host.f().settings.WriteSettings(gameType, rounds, yaku ? -1 : 0, 0); });
}

bool NetFixture::connect() {
    act(host, [this] { host.f().mnuSetup_Click(); });
    act(client, [this] { client.f().mnuSetup_Click(); });
    const bool up = runUntil([this] {
        return client.f().connectionStatus && client.f().m.mConnected && host.boxes("Connection Successful") > 0;
    });
    world.advance(500);  // the host's options arrive
    return up;
}

bool NetFixture::deal() {
    act(host, [this] { host.f().dealer.imgDeck_Click(); });
    return runUntil([this] { return client.f().g.gGameInProgress == 1 && !client.f().connectionStatus; });
}

bool NetFixture::playDeal() {
    const int hostEnds = host.ends.count, clientEnds = client.ends.count;
    return playUntil([&] { return host.ends.count > hostEnds && client.ends.count > clientEnds; });
}

bool NetFixture::playUntil(const std::function<bool()>& done) {
    sim::Policy first(false, 0);
    for (int guard = 0; guard < 100'000; ++guard) {
        if (done()) return true;
        bool moved = false;
        for (Side* side : {&host, &client}) {
            if (moved || side->host.waiting() || !sim::canMove(side->f())) continue;
            // A move may pause (a flip's half second) and finish after act has returned: its
            // result goes where it outlives this frame.
            const auto made = std::make_shared<bool>(false);
            act(*side, [made, side, &first] { *made = sim::localMove(side->f(), first); });
            moved = *made;
        }
        if (!moved && !world.step()) return false;
    }
    return false;
}

}  // namespace petal::test
