// The table as a screen reader finds it: each thing's name, role and state read through Qt's
// accessibility interfaces from a table set by hand.
#include <gtest/gtest.h>

#include <QAccessible>
#include <functional>

#include "TableWindow.h"
#include "engine/table_view/TableView.h"

namespace petal::test {
namespace {

class TableSpeechTest : public ::testing::Test, protected TableWindow {
protected:
    // Card number n of the catalogue at deck position pos, shown by a control.
    void show(Image& place, int pos, int n) {
        f.m.mCards[pos] = FrmCards::card(n);
        place.Tag = pos;
        place.Picture = FrmCards::imgCard(n - 1).Picture;
        place.Visible = true;
    }
    QAccessibleInterface* named(const QString& name) {
        window.table()->modelChanged();
        QAccessibleInterface* table = QAccessible::queryAccessibleInterface(window.table());
        for (int i = 0; i < table->childCount(); ++i)
            if (table->child(i)->text(QAccessible::Name) == name) return table->child(i);
        return nullptr;
    }
    FrmMain& f = program.frmMain;
};

struct Case {
    const char* name;
    std::function<void(FrmMain&)> set;
    QAccessible::Role role;
    bool selected, framed, disabled;
};

TEST_F(TableSpeechTest, EachThingIsNamedFromTheModelWithItsRoleAndState) {
    const auto frameUme = [this](FrmMain& g) {
        show(g.ctl.imgTCard[0], 16, 7);
        show(g.ctl.imgTCard[1], 17, 44);
        g.ctl.shpTHilite[0].Visible = true;
    };
    const Case cases[] = {
        {"Deck, 48 cards left, click to deal", [](FrmMain&) {}, QAccessible::Button, false, false, false},
        {"Deck, 14 cards left", [](FrmMain& g) { g.g.gGameInProgress = 1, g.m.mDeckPos = 33; }, QAccessible::Button, false, false, true},
        {"Matsu Ni Tsuru, January, 20 points", [this](FrmMain& g) { show(g.ctl.imgPCard[2], 0, 1); }, QAccessible::Button, false, false, false},
        {"Matsu Ni Tsuru, January, 20 points",
         [this](FrmMain& g) { show(g.ctl.imgPCard[2], 0, 1), g.ctl.shpPHilite.Visible = true, g.ctl.shpPHilite.Tag = 2; },
         QAccessible::Button, true, false, false},
        {"Ume No Kasu, February, 0 points, can be taken", frameUme, QAccessible::Button, false, true, false},
        // While a card is framed, the others are no stop of the keys and no click takes them.
        {"Yanagi No Kasu, November, 0 points", frameUme, QAccessible::Button, false, false, true},
        {"Turned from the deck: Kiri Ni Hooh, December, 20 points, waits to be placed",
         [this](FrmMain& g) { show(g.ctl.imgFlipCard, 30, 45), g.ctl.shpFlipCard.Visible = true; }, QAccessible::Button, false, true, true},
        {"The computer's hand, 3 cards", [this](FrmMain& g) {
             for (int i = 0; i < 8; ++i) g.ctl.imgCCard[i].clearCard();
             for (int i : {0, 4, 7}) show(g.ctl.imgCCard[i], 8 + i, 9);
         },
         QAccessible::StaticText, false, false, false},
        {"Your score, 35, your turn", [](FrmMain& g) { g.ctl.panel[0].lblPointsTotal[3].Caption = "35", g.ctl.panel[0].imgTurn.Visible = true; },
         QAccessible::StaticText, false, false, false},
        {"You lose", [](FrmMain& g) { g.ctl.imgWinLose[0].Picture = FrmCards::imgWinLose(1), g.ctl.imgWinLose[0].Visible = true; },
         QAccessible::StaticText, false, false, false},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        const TableModel table = f.ctl;
        const MainVars vars = f.m;
        const Globals globals = f.g;
        c.set(f);
        QAccessibleInterface* thing = named(c.name);
        ASSERT_NE(thing, nullptr);
        EXPECT_EQ(thing->role(), c.role);
        EXPECT_EQ(thing->state().selected, c.selected);
        EXPECT_EQ(thing->state().active, c.framed);
        EXPECT_EQ(thing->state().disabled, c.disabled);
        EXPECT_EQ(thing->actionInterface()->actionNames().size(), c.role == QAccessible::Button && !c.disabled ? 1 : 0);
        f.ctl = table;
        f.m = vars;
        f.g = globals;
    }
}

TEST_F(TableSpeechTest, AScoreTellsTheYakuHeldAndThoseOneCardAway) {
    f.m.mYakuCards[0][7] = 3;
    f.m.mYakuCards[0][3] = 2;
    f.m.mYakuCards[0][0] = 2;
    f.m.mYakuCards[1][0] = 1;  // the other side holds one of these: out of reach
    EXPECT_EQ(named("Your score, 0")->text(QAccessible::Description).toStdString(),
              "holds the yaku of Ume Ni Uguisu, Matsu Ni Tsuru and Sakura Ni Maku; "
              "one card from the yaku of Botan No Tan, Kiku No Tan and Momiji No Tan");
}

}  // namespace
}  // namespace petal::test
