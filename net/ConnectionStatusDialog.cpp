#include "net/ConnectionStatusDialog.h"

#include <QClipboard>
#include <QGridLayout>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>

#include "assets/PictureStore.h"
#include "assets/Pictures.h"
#include "net/Connection.h"
#include "net/FrmConnectionStatus.h"
#include "net/JoinAddress.h"
#include "platform/qt/QtHost.h"
#include "platform/Words.h"
#include "platform/qt/Language.h"

namespace petal {

namespace {
// The crane, the moon and the phoenix: three cards that read well small.
constexpr PictureId kCards[3] = {pic::card(0), pic::card(28), pic::card(44)};
constexpr int kSyncMs = 100;
}  // namespace

ConnectionStatusDialog::ConnectionStatusDialog(FrmConnectionStatus& form, QtHost& host, PictureStore& pictures,
                                               QWidget* parent)
    : FormDialog(form, host, parent),
      form_(form),
      message_(new QLabel(this)),
      places_(new QWidget(this)),
      placeRows_(new QGridLayout(places_)),
      detail_(new QLabel(this)) {
    setWindowTitle(Language::core(form.Caption));
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(18, 14, 18, 12);
    layout->setSpacing(12);
    message_->setText(Language::core(form.Label1));
    message_->setAlignment(Qt::AlignCenter);
    message_->setWordWrap(true);
    layout->addWidget(message_);
    // What the router said, over the addresses it concerns.
    detail_->setAlignment(Qt::AlignCenter);
    detail_->setWordWrap(true);
    detail_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    layout->addWidget(detail_);
    placeRows_->setContentsMargins(0, 0, 0, 0);
    placeRows_->setColumnStretch(0, 1);
    layout->addWidget(places_);
    auto* row = new QHBoxLayout;
    row->setSpacing(10);
    row->addStretch();
    const qreal dpr = devicePixelRatioF();
    for (int i = 0; i < 3; ++i) {
        cards_[i] = new QLabel(this);
        cards_[i]->setFixedSize(50, 80);
        cards_[i]->setPixmap(pictures.pixmap(kCards[i], QSize(50, 80), dpr));
        // A hidden card keeps its place, so the row does not jump.
        auto policy = cards_[i]->sizePolicy();
        policy.setRetainSizeWhenHidden(true);
        cards_[i]->setSizePolicy(policy);
        row->addWidget(cards_[i]);
    }
    row->addStretch();
    layout->addLayout(row);
    auto* cancel = new QPushButton(Language::core(PETAL_TR("core", "Cancel")), this);
    cancel->setFixedWidth(90);
    // The wait often follows a box answered with Enter: a second Enter or a Space, meant for the
    // table, must not end the session. Escape and the mouse still cancel.
    cancel->setAutoDefault(false);
    cancel->setFocusPolicy(Qt::NoFocus);
    layout->addWidget(cancel, 0, Qt::AlignHCenter);
    onClick(cancel, [this] { form_.cmdCancel_Click(); });
    // The model's timer steps the animation; the view follows it.
    auto* follow = new QTimer(this);
    connect(follow, &QTimer::timeout, this, [this] { sync(); });
    follow->start(kSyncMs);
    setMinimumWidth(340);
    sync();
}

void ConnectionStatusDialog::sync() {
    if (!form_.loaded()) return;
    setWindowTitle(Language::core(form_.Caption));
    message_->setText(Language::core(form_.Label1));
    detail_->setText(QString::fromStdString(form_.Label2));
    detail_->setVisible(!form_.Label2.empty());
    showPlaces();
    for (int i = 0; i < 3; ++i) cards_[i]->setVisible(form_.imgCardVisible[i]);
}

// A row for each address, rebuilt only when the list changes, so a button is not pulled from
// under the pointer.
void ConnectionStatusDialog::showPlaces() {
    std::vector<std::string> lines;
    for (const JoinPlace& place : form_.joinPlaces)
        lines.push_back(place.address + ", port " + std::to_string(place.port) + "\t" + place.what);
    if (lines == shownPlaces_) return;
    shownPlaces_ = lines;
    while (QLayoutItem* item = placeRows_->takeAt(0)) {
        delete item->widget();
        delete item;
    }
    int row = 0;
    for (const JoinPlace& place : form_.joinPlaces) {
        auto* address = new QLabel(Language::core(PETAL_TR("core", "<b>%1</b>, port %2<br><small>%3</small>"))
                                       .arg(QString::fromStdString(place.address).toHtmlEscaped())
                                       .arg(place.port)
                                       .arg(Language::core(place.what).toHtmlEscaped()),
                                   places_);
        address->setTextInteractionFlags(Qt::TextSelectableByMouse);
        auto* copy = new QPushButton(Language::core(PETAL_TR("core", "Copy")), places_);
        copy->setFixedWidth(70);
        copy->setAccessibleName(Language::core(PETAL_TR("core", "Copy %1")).arg(QString::fromStdString(place.address)));
        const QString text = QString::fromStdString(joinAddressText(place.address, place.port, Connection::kPort));
        connect(copy, &QPushButton::clicked, this, [text] { QGuiApplication::clipboard()->setText(text); });
        placeRows_->addWidget(address, row, 0);
        placeRows_->addWidget(copy, row, 1, Qt::AlignVCenter);
        ++row;
    }
    places_->setVisible(row > 0);
    adjustSize();
}

// The close box asks as Cancel does.
void ConnectionStatusDialog::reject() {
    forward([this] { form_.Unload(true); });
}

}  // namespace petal
