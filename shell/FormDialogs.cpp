#include "shell/FormDialogs.h"

#include "net/ConnectionStatusDialog.h"
#include "net/FrmConnectionStatus.h"
#include "net/FrmPetalChat.h"
#include "net/PetalChatDialog.h"
#include "records/FrmHOF.h"
#include "records/FrmHOFWinner.h"
#include "records/FrmStatistics.h"
#include "records/HofDialog.h"
#include "records/HofWinnerDialog.h"
#include "records/StatisticsDialog.h"
#include "scoring/FrmScoreCard.h"
#include "scoring/ScoreCardDialog.h"
#include "shell/FrmSetup.h"
#include "platform/qt/QtHost.h"
#include "shell/SetupDialog.h"
#include "shell/FrmSplash.h"
#include "shell/SplashDialog.h"

namespace petal {

void registerFormDialogs(QtHost& host, PictureStore& pictures) {
    host.registerDialog("frmScoreCard", [&host](Form& form, QWidget* parent) {
        return new ScoreCardDialog(static_cast<FrmScoreCard&>(form), host, parent);
    });
    host.registerDialog("frmHOFWinner", [&host, &pictures](Form& form, QWidget* parent) {
        return new HofWinnerDialog(static_cast<FrmHOFWinner&>(form), host, pictures, parent);
    });
    host.registerDialog("frmHOF", [&host, &pictures](Form& form, QWidget* parent) {
        return new HofDialog(static_cast<FrmHOF&>(form), host, pictures, parent);
    });
    host.registerDialog("frmStatistics", [&host](Form& form, QWidget* parent) {
        return new StatisticsDialog(static_cast<FrmStatistics&>(form), host, parent);
    });
    host.registerDialog("frmConnectionStatus", [&host, &pictures](Form& form, QWidget* parent) {
        return new ConnectionStatusDialog(static_cast<FrmConnectionStatus&>(form), host, pictures, parent);
    });
    host.registerDialog("frmPetalChat", [&host, &pictures](Form& form, QWidget* parent) {
        return new PetalChatDialog(static_cast<FrmPetalChat&>(form), host, pictures, parent);
    });
    host.registerDialog("frmSetup", [&host, &pictures](Form& form, QWidget* parent) {
        return new SetupDialog(static_cast<FrmSetup&>(form), host, pictures, parent);
    });
    host.registerDialog("frmSplash", [&host, &pictures](Form& form, QWidget* parent) {
        return new SplashDialog(static_cast<FrmSplash&>(form), host, pictures, parent);
    });
}

}  // namespace petal
