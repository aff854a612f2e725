#include "shell/SetupDialog.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include "assets/PictureStore.h"
#include "shell/FrmSetup.h"
#include "platform/qt/QtHost.h"
#include "platform/Words.h"
#include "platform/qt/Language.h"

namespace petal {

namespace {

void paintBox(QLineEdit* box, const SetupTextBox& model) {
    box->setEnabled(model.Enabled);
    QPalette palette = box->palette();
    const QColor colour = model.BackColor == FrmSetup::kButtonFace
                              ? box->palette().color(QPalette::Button)
                              : QColor(model.BackColor & 0xFF, (model.BackColor >> 8) & 0xFF, (model.BackColor >> 16) & 0xFF);
    palette.setColor(QPalette::Base, colour);
    palette.setColor(QPalette::Disabled, QPalette::Base, colour);
    box->setPalette(palette);
}

}  // namespace

SetupDialog::SetupDialog(FrmSetup& form, QtHost& host, PictureStore& pictures, QWidget* parent)
    : FormDialog(form, host, parent), form_(form) {
    setWindowTitle(Language::core(PETAL_TR("core", "Setup")));
    auto* top = new QGridLayout(this);

    auto* frame1 = new QGroupBox(this);
    auto* typeLayout = new QGridLayout(frame1);
    const char* types[2] = {PETAL_TR("core", "Single Game"), PETAL_TR("core", "Tournament")};
    for (int i = 0; i < 2; ++i) {
        gameType_[i] = new QRadioButton(Language::core(types[i]), frame1);
        typeLayout->addWidget(gameType_[i], i, 0, 1, 2);
        onClick(gameType_[i], [this, i] { form_.selectGameType(i); });
    }
    roundsLabel_ = new QLabel(Language::core(PETAL_TR("core", "Rounds")), frame1);
    rounds_ = new QLineEdit(frame1);
    rounds_->setFixedWidth(40);
    rounds_->installEventFilter(this);
    roundsLabel_->setBuddy(rounds_);  // a reader names the box by its label
    frame1->setAccessibleName(Language::core(PETAL_TR("core", "Game Type")));
    typeLayout->addWidget(roundsLabel_, 2, 0);
    typeLayout->addWidget(rounds_, 2, 1, Qt::AlignLeft);
    yaku_ = new QCheckBox(Language::core(PETAL_TR("core", "Use Yaku")), frame1);
    typeLayout->addWidget(yaku_, 3, 0, 1, 2);
    top->addWidget(frame1, 0, 0);

    auto* decoration = new QPushButton(this);  // a picture only; it has no handler
    decoration->setIcon(QIcon(pictures.pixmap(pic::SetupDecoration, devicePixelRatioF())));
    decoration->setIconSize(QSize(64, 96));
    decoration->setFocusPolicy(Qt::NoFocus);
    top->addWidget(decoration, 0, 1);

    auto* frame2 = new QGroupBox(Language::core(PETAL_TR("core", "Game Options")), this);
    auto* modeLayout = new QGridLayout(frame2);
    const char* modes[3] = {PETAL_TR("core", "Single Player (you versus the computer)"),
                            PETAL_TR("core", "Host A Game (server side component)"),
                            PETAL_TR("core", "Join A Game (client side component)")};
    for (int i = 0; i < 3; ++i) {
        game_[i] = new QRadioButton(Language::core(modes[i]), frame2);
        modeLayout->addWidget(game_[i], i * 2, 0, 1, 2);
        onClick(game_[i], [this, i] { form_.selectGame(i); });
    }
    // Under single play, whose opponent it is; a row of its own, so that its two buttons
    // exclude each other and not the play modes.
    computerRow_ = new QWidget(frame2);
    auto* computerLayout = new QHBoxLayout(computerRow_);
    computerLayout->setContentsMargins(24, 0, 0, 0);
    auto* computerLabel = new QLabel(Language::core(PETAL_TR("core", "Computer:")), computerRow_);
    computerLayout->addWidget(computerLabel);
    const char* computers[2] = {PETAL_TR("core", "Standard"), PETAL_TR("core", "Strong")};
    for (int i = 0; i < 2; ++i) {
        computer_[i] = new QRadioButton(Language::core(computers[i]), computerRow_);
        computerLayout->addWidget(computer_[i]);
        onClick(computer_[i], [this, i] { form_.selectComputer(i); });
    }
    computerLabel->setBuddy(computer_[0]);
    computerLayout->addStretch();
    modeLayout->addWidget(computerRow_, 1, 0, 1, 2);
    hostIP_ = new QLineEdit(frame2);
    auto* hostLabel = new QLabel(Language::core(PETAL_TR("core", "Host IP")), frame2);
    hostLabel->setBuddy(hostIP_);
    modeLayout->addWidget(hostLabel, 5, 0);
    modeLayout->addWidget(hostIP_, 5, 1);
    // Under hosting, as the computer's row stands under single play.
    routerPort_ = new QCheckBox(
        Language::core(PETAL_TR("core", "Let friends across the internet join (opens the port on your router)")), frame2);
    auto* routerRow = new QHBoxLayout;
    routerRow->setContentsMargins(24, 0, 0, 0);
    routerRow->addWidget(routerPort_);
    modeLayout->addLayout(routerRow, 3, 0, 1, 2);
    top->addWidget(frame2, 1, 0, 1, 2);

    auto* ok = new QPushButton(Language::core(PETAL_TR("core", "OK")), this);
    auto* cancel = new QPushButton(Language::core(PETAL_TR("core", "Cancel")), this);
    ok->setDefault(true);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(ok);
    buttons->addWidget(cancel);
    top->addLayout(buttons, 2, 0, 1, 2);

    // The model keeps the length limits, which hold for the user's edits only: an over-long
    // edit comes back cut, as a limited box would have taken it.
    connect(rounds_, &QLineEdit::textEdited, this,
            [this](const QString& t) { forward([this, t] { form_.setText(form_.txtRounds, t.toStdString()); }); });
    connect(hostIP_, &QLineEdit::textEdited, this,
            [this](const QString& t) { forward([this, t] { form_.setText(form_.txtHostIP, t.toStdString()); }); });
    connect(yaku_, &QCheckBox::toggled, this, [this](bool on) { form_.chkUseYaku = on ? 1 : 0; });
    connect(routerPort_, &QCheckBox::toggled, this, [this](bool on) { form_.chkRouterPort = on ? 1 : 0; });
    onClick(ok, [this] { form_.cmdOK_Click(); });
    onClick(cancel, [this] { form_.cmdCancel_Click(); });
    sync();
    setFixedSize(sizeHint());
}

// Brings the widgets in line with the model, and puts the focus where validation asked.
void SetupDialog::sync() {
    for (int i = 0; i < 2; ++i) gameType_[i]->setChecked(form_.optGameType[i]);
    for (int i = 0; i < 3; ++i) game_[i]->setChecked(form_.optGame[i]);
    for (int i = 0; i < 2; ++i) computer_[i]->setChecked(form_.optComputer[i]);
    computerRow_->setEnabled(form_.computerEnabled);
    roundsLabel_->setEnabled(form_.lblRoundsEnabled);
    if (rounds_->text().toStdString() != form_.txtRounds.Text) rounds_->setText(QString::fromStdString(form_.txtRounds.Text));
    if (hostIP_->text().toStdString() != form_.txtHostIP.Text) hostIP_->setText(QString::fromStdString(form_.txtHostIP.Text));
    paintBox(rounds_, form_.txtRounds);
    paintBox(hostIP_, form_.txtHostIP);
    yaku_->setChecked(form_.chkUseYaku != 0);
    routerPort_->setChecked(form_.chkRouterPort != 0);
    routerPort_->setEnabled(form_.routerPortEnabled);
    QLineEdit* focus = form_.focus == FrmSetup::Field::Rounds ? rounds_ : form_.focus == FrmSetup::Field::HostIP ? hostIP_ : nullptr;
    if (focus) {
        focus->setFocus();
        focus->selectAll();
        form_.focus = FrmSetup::Field::None;
    }
}

bool SetupDialog::eventFilter(QObject* watched, QEvent* event) {
    if (watched == rounds_ && event->type() == QEvent::KeyPress) {
        auto* key = static_cast<QKeyEvent*>(event);
        const QString text = key->text();
        // Typed characters go through the model's filter; editing and pasting keys pass.
        if (text.size() == 1 && text[0].unicode() >= 32 && !(key->modifiers() & Qt::ControlModifier))
            return FrmSetup::txtRounds_KeyPress(text[0].unicode()) == 0;
    }
    return QDialog::eventFilter(watched, event);
}

void SetupDialog::reject() {
    forward([this] { form_.cmdCancel_Click(); });
}

}  // namespace petal
