#include "net/PetalChatDialog.h"

#include <algorithm>

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QMouseEvent>
#include <QPainter>
#include <QPushButton>
#include <QScrollBar>
#include <QTimer>
#include <QVBoxLayout>

#include "assets/PictureStore.h"
#include "net/FrmPetalChat.h"
#include "platform/qt/QtHost.h"
#include "platform/Words.h"
#include "platform/qt/Language.h"

namespace petal {

namespace {
constexpr int kRows = 14;     // the list shows fourteen lines before it scrolls
constexpr int kSyncMs = 100;  // lines come from the socket, outside this dialog's input
using Focus = FrmPetalChat::Focus;
}  // namespace

PetalChatDialog::PetalChatDialog(FrmPetalChat& form, QtHost& host, PictureStore& pictures, QWidget* parent)
    : FormDialog(form, host, parent),
      form_(form),
      pictures_(pictures),
      picture_(new QWidget(this)),
      list_(new QListWidget(picture_)),
      text_(new QLineEdit(picture_)),
      send_(new QPushButton(Language::core(form.cmdSend.Caption), picture_)),
      close_(new QPushButton(Language::core(form.cmdClose.Caption), picture_)) {
    setWindowTitle(Language::core(form.Caption));
    auto* outer = new QVBoxLayout(this);
    outer->setContentsMargins(0, 0, 0, 0);
    outer->addWidget(picture_);
    picture_->setObjectName(QStringLiteral("Picture1"));
    list_->setObjectName(QStringLiteral("lstChat"));
    text_->setObjectName(QStringLiteral("txtMsg"));
    send_->setObjectName(QStringLiteral("cmdSend"));
    close_->setObjectName(QStringLiteral("cmdClose"));
    list_->setAccessibleName(Language::core(PETAL_TR("core", "Chat lines")));
    text_->setAccessibleName(Language::core(PETAL_TR("core", "Your line")));

    auto* layout = new QVBoxLayout(picture_);
    layout->setContentsMargins(18, 18, 18, 16);
    layout->setSpacing(8);
    list_->setSelectionMode(QAbstractItemView::SingleSelection);
    list_->setUniformItemSizes(true);
    list_->setWordWrap(false);
    list_->setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    list_->addItem(QStringLiteral(" "));  // measures a row
    const int row = list_->sizeHintForRow(0);
    list_->clear();
    list_->setFixedSize(340, kRows * row + 2 * list_->frameWidth());
    layout->addWidget(list_);
    text_->setMaxLength(static_cast<int>(FrmPetalChat::kMaxLine));
    layout->addWidget(text_);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    for (QPushButton* button : {send_, close_}) {
        // Enter belongs to the text box: no button is pressed by it behind the form's back.
        button->setAutoDefault(false);
        button->setDefault(false);
        button->setFixedWidth(80);
        buttons->addWidget(button);
    }
    layout->addLayout(buttons);

    for (QWidget* control : {static_cast<QWidget*>(list_), static_cast<QWidget*>(text_),
                             static_cast<QWidget*>(send_), static_cast<QWidget*>(close_)})
        control->installEventFilter(this);
    picture_->installEventFilter(this);
    list_->viewport()->installEventFilter(this);

    connect(text_, &QLineEdit::textEdited, this,
            [this](const QString& t) { forward([this, t] { form_.setTxtMsg(t.toStdString()); }); });
    connect(list_, &QListWidget::currentRowChanged, this, [this](int row) { form_.lstChat.ListIndex = row; });
    onClick(send_, [this] { form_.cmdSend_Click(); });
    onClick(close_, [this] { form_.cmdClose_Click(); });
    auto* follow = new QTimer(this);
    connect(follow, &QTimer::timeout, this, [this] {
        if (form_.loaded()) sync();
    });
    follow->start(kSyncMs);
    sync();
    setFixedSize(sizeHint());
}

QWidget* PetalChatDialog::focusWidget(int control) const {
    switch (static_cast<Focus>(control)) {
        case Focus::lstChat: return list_;
        case Focus::cmdSend: return send_;
        case Focus::cmdClose: return close_;
        case Focus::txtMsg: break;
    }
    return text_;
}

void PetalChatDialog::sync() {
    setWindowTitle(Language::core(form_.Caption));
    const auto& lines = form_.lstChat.List;
    for (int i = list_->count(); i < static_cast<int>(lines.size()); ++i)
        list_->addItem(QString::fromStdString(lines[i]));
    if (form_.lstChat.TopIndex != shownTop_ && list_->count() > 0) {
        shownTop_ = form_.lstChat.TopIndex;
        // The list scrolls as far as it can towards the line asked for.
        const int top = std::clamp(shownTop_, 0, list_->count() - 1);
        list_->scrollToItem(list_->item(top), QAbstractItemView::PositionAtTop);
    }
    const QString text = QString::fromStdString(form_.txtMsg.Text);
    if (text_->text() != text) text_->setText(text);
    send_->setEnabled(form_.cmdSend.Enabled);
    QWidget* focus = focusWidget(static_cast<int>(form_.ActiveControl));
    if (!focus->hasFocus()) focus->setFocus();
}

bool PetalChatDialog::eventFilter(QObject* watched, QEvent* event) {
    switch (event->type()) {
        case QEvent::FocusIn:
            if (watched == list_) form_.ActiveControl = Focus::lstChat;
            else if (watched == text_) form_.ActiveControl = Focus::txtMsg;
            else if (watched == send_) form_.ActiveControl = Focus::cmdSend;
            else if (watched == close_) form_.ActiveControl = Focus::cmdClose;
            break;
        case QEvent::KeyPress: {
            auto* key = static_cast<QKeyEvent*>(event);
            // Keys that type a character, Enter, Escape and Backspace among them; Tab and the
            // arrows move about the form.
            if (key->text().isEmpty() || key->key() == Qt::Key_Tab || key->key() == Qt::Key_Backtab) break;
            return keyPressed(watched, key->text().at(0).unicode());
        }
        case QEvent::MouseButtonPress:
            if (watched == picture_ && static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton) {
                forward([this] { form_.Picture1_Click(); });
                return true;
            }
            break;
        case QEvent::MouseButtonDblClick:
            // The press before it has selected the line under the mouse, if any.
            if (watched == list_->viewport()) forward([this] { form_.lstChat_DblClick(); });
            break;
        case QEvent::Paint:
            if (watched == picture_) {
                QPainter painter(picture_);
                painter.fillRect(picture_->rect(), QColor(0x3A, 0x24, 0x14));  // behind the picture's rounded corners
                painter.drawPixmap(picture_->rect(),
                                   pictures_.pixmap(form_.Picture1.Picture, picture_->size(), devicePixelRatioF()));
                return true;
            }
            break;
        default: break;
    }
    return FormDialog::eventFilter(watched, event);
}

// The form sees every key first; the text box then sees its own, unless the form has closed.
bool PetalChatDialog::keyPressed(QObject* watched, int ascii) {
    forward([this, ascii] { form_.Form_KeyPress(ascii); });
    if (!form_.loaded()) return true;
    if (watched != text_) return false;
    int passed = ascii;
    forward([this, ascii, &passed] { passed = form_.txtMsg_KeyPress(ascii); });
    return passed == 0;
}

void PetalChatDialog::reject() {
    forward([this] { form_.cmdClose_Click(); });
}

}  // namespace petal
