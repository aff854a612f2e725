// The statistics dialog on the Qt host: the record chosen in its list is the one it shows, and
// Close closes it. Its picture is saved under the build folder.
#include <gtest/gtest.h>

#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QTimer>

#include "GameFixture.h"
#include "ViewStart.h"
#include "assets/PictureStore.h"
#include "records/MarginChart.h"
#include "shell/FormDialogs.h"

namespace petal::test {
namespace {

TEST(StatisticsView, TheChosenRecordIsShownWithItsChart) {
    TempDir dir;
    QtHost host{dir.path()};
    PictureStore pictures;
    Program program{host};
    registerFormDialogs(host, pictures);
    startPastSplash(host, program);
    for (int i = 0; i < 12; ++i)
        program.frmMain.stats.record({"s" + std::to_string(i), "11/22/2026", 0, "standard", 1, 100 + i * 7 % 40, 110});
    program.frmMain.stats.record({"t", "11/22/2026", 1, "standard", 5, 420, 300});
    QStringList shown;
    QTimer::singleShot(50, [&] {
        QWidget* dialog = QApplication::activeModalWidget();
        ASSERT_NE(dialog, nullptr);
        const auto played = [dialog] {
            for (QLabel* label : dialog->findChildren<QLabel*>())
                if (label->text() == "Games played") return label->parentWidget()->findChildren<QLabel*>()[1]->text();
            return QString();
        };
        auto* record = dialog->findChild<QComboBox*>();
        ASSERT_NE(dialog->findChild<MarginChart*>(), nullptr);
        shown << record->currentText() << played();
        record->setCurrentIndex(0);
        emit record->activated(0);
        shown << record->currentText() << played();
        dialog->grab().save(QStringLiteral(PETAL_BUILD_DIR "/statistics.png"));
        for (auto* b : dialog->findChildren<QPushButton*>())
            if (b->text() == "Close") b->click();
    });
    host.dispatch([&] { program.frmMain.mnuStatistics_Click(); });
    EXPECT_EQ(shown, QStringList({"Tournaments against the Standard computer", "1",
                                  "Single games against the Standard computer", "12"}));
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

}  // namespace
}  // namespace petal::test
