#include "records/HofWinnerDialog.h"

#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QValidator>

#include "assets/PictureStore.h"
#include "records/Characters.h"
#include "records/FrmHOFWinner.h"
#include "platform/qt/QtHost.h"
#include "platform/Words.h"
#include "platform/qt/Language.h"

namespace petal {

namespace {

// The box takes no edit that would make the name longer than its characters allow, counted
// as the form counts them; a limit in UTF-16 units would cut an emoji in half.
class NameLength : public QValidator {
public:
    using QValidator::QValidator;
    State validate(QString& input, int&) const override {
        return characterCount(input.toStdString()) <= FrmHOFWinner::kMaxName ? Acceptable : Invalid;
    }
};

}  // namespace

HofWinnerDialog::HofWinnerDialog(FrmHOFWinner& form, QtHost& host, PictureStore& pictures, QWidget* parent)
    : FormDialog(form, host, parent), form_(form), name_(new QLineEdit(this)), ok_(new QPushButton(Language::core(PETAL_TR("core", "OK")), this)) {
    setWindowTitle(Language::core(form.Caption));
    auto* layout = new QGridLayout(this);
    auto* picture = new QLabel(this);
    picture->setPixmap(pictures.pixmap(pic::HofWinnerDecoration, devicePixelRatioF()));
    layout->addWidget(picture, 0, 0, 3, 1, Qt::AlignTop);
    layout->addWidget(new QLabel(Language::core(form.Label1), this), 0, 1, 1, 2);
    auto* prompt = new QLabel(Language::core(form.Label2), this);
    prompt->setBuddy(name_);  // a reader names the box by the line that asks for it
    layout->addWidget(prompt, 1, 1, 1, 2);
    name_->setValidator(new NameLength(name_));
    name_->setText(QString::fromStdString(form.txtHOFName()));
    layout->addWidget(name_, 2, 1, 1, 2);
    auto* cancel = new QPushButton(Language::core(PETAL_TR("core", "Cancel")), this);
    ok_->setDefault(true);
    ok_->setEnabled(form.cmdOKEnabled());
    layout->addWidget(ok_, 3, 1);
    layout->addWidget(cancel, 3, 2);
    connect(name_, &QLineEdit::textEdited, this, [this](const QString& text) {
        forward([this, text] { form_.setTxtHOFName(text.toStdString()); });
        ok_->setEnabled(form_.cmdOKEnabled());
    });
    onClick(ok_, [this] { form_.cmdOK_Click(); });
    onClick(cancel, [this] { form_.cmdCancel_Click(); });
    setFixedSize(sizeHint());
}

void HofWinnerDialog::reject() {
    forward([this] { form_.cmdCancel_Click(); });
}

}  // namespace petal
