#include "platform/qt/QtHost.h"

#include <QApplication>
#include <QCloseEvent>
#include <QCoreApplication>
#include <QDialog>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QMessageBox>
#include <QScreen>
#include <QTextBoundaryFinder>
#include <QTimer>
#include <algorithm>

#include "platform/qt/Language.h"
#include "platform/FatalError.h"
#include "platform/Form.h"
#include "platform/Timer.h"
#include "platform/qt/KeyStrokes.h"

namespace petal {

namespace {

// A word wider than width (a long path) in pieces that fit: after its last "/" within reach,
// or else after as many whole characters as fit, and at least one.
QStringList pieces(QString word, const QFontMetrics& metrics, int width) {
    QStringList out;
    while (metrics.horizontalAdvance(word) > width) {
        QTextBoundaryFinder characters(QTextBoundaryFinder::Grapheme, word);
        int fits = characters.toNextBoundary(), slash = 0;
        for (int at = fits; at > 0 && metrics.horizontalAdvance(word.left(at)) <= width;
             at = characters.toNextBoundary()) {
            fits = at;
            if (word.at(at - 1) == QLatin1Char('/')) slash = at;
        }
        const int cut = slash > 0 ? slash : fits;
        out << word.left(cut);
        word = word.mid(cut);
    }
    out << word;
    return out;
}

// Breaks each line of a text into lines no wider than width: at blanks, and inside a word that
// is wider on its own.
QString wrapped(const QString& text, const QFontMetrics& metrics, int width) {
    QStringList lines;
    for (const QString& paragraph : text.split(QLatin1Char('\n'))) {
        QString line;
        for (const QString& word : paragraph.split(QLatin1Char(' '))) {
            const QString longer = line.isEmpty() ? word : line + QLatin1Char(' ') + word;
            if (metrics.horizontalAdvance(longer) <= width) {
                line = longer;
                continue;
            }
            if (!line.isEmpty()) lines << line;
            QStringList parts = pieces(word, metrics, width);
            line = parts.takeLast();
            lines << parts;
        }
        lines << line;
    }
    return lines.join(QLatin1Char('\n'));
}

// A message box of the game. It opens where the host places it, its text wrapped to fit the
// width it is given; a Yes/No question answers only to its two buttons, so that neither Escape
// nor the close box takes it for No.
class GameBox : public QMessageBox {
public:
    GameBox(QWidget* parent, bool question, int widest, std::function<std::optional<QPoint>(QSize)> place)
        : QMessageBox(parent), question_(question), widest_(widest), place_(std::move(place)) {
        if (question_) setWindowFlag(Qt::WindowCloseButtonHint, false);
    }

protected:
    // The box takes its final size only here, just before it appears.
    void showEvent(QShowEvent* event) override {
        QMessageBox::showEvent(event);
        narrowTo(widest_);
        if (const auto at = place_(frameGeometry().size())) move(*at);
    }
    void keyPressEvent(QKeyEvent* event) override {
        if (question_ && event->matches(QKeySequence::Cancel)) return;
        QMessageBox::keyPressEvent(event);
    }
    void closeEvent(QCloseEvent* event) override {
        if (question_) event->ignore();
        else QMessageBox::closeEvent(event);
    }

private:
    // The box lays its text out up to half the screen wide; a text too wide for the table is
    // broken into shorter lines instead, and the box takes its size anew.
    // The label's own margins are not in the text's width: a second pass takes up what is left.
    // The window's frame, where the platform draws one, stands within the width too.
    void narrowTo(int width) {
        const auto* label = findChild<QLabel*>(QStringLiteral("qt_msgbox_label"));
        const int framed = frameGeometry().width() - this->width();
        for (int pass = 0; pass < 3 && width > 0 && frameGeometry().width() > width && label; ++pass)
            setText(wrapped(text(), label->fontMetrics(), label->width() - (this->width() + framed - width)));
    }

    bool question_;
    int widest_;
    std::function<std::optional<QPoint>(QSize)> place_;
};

}  // namespace

void QtHost::registerDialog(const std::string& formName, DialogFactory make) { dialogs_[formName] = std::move(make); }

void QtHost::modelChanged() {
    closeUnloadedDialogs();
    if (onModelChanged) onModelChanged();
}

MsgResult QtHost::msgBox(const MsgBox& box) {
    if (ending()) return MsgResult::Cancel;
    if (onModelChanged) onModelChanged();
    GameBox dialog(mainWidget_, box.buttons == MsgButtons::YesNo, widestBox(),
                   [this](QSize size) { return overTable(size); });
    dialog.setWindowTitle(Language::core(box.title));
    dialog.setText(Language::core(box.text));
    switch (box.icon) {
        case MsgIcon::Critical: dialog.setIcon(QMessageBox::Critical); break;
        case MsgIcon::Question: dialog.setIcon(QMessageBox::Question); break;
        case MsgIcon::Exclamation: dialog.setIcon(QMessageBox::Warning); break;
        case MsgIcon::Information: dialog.setIcon(QMessageBox::Information); break;
        case MsgIcon::None: break;
    }
    switch (box.buttons) {
        case MsgButtons::OK: dialog.setStandardButtons(QMessageBox::Ok); break;
        case MsgButtons::OKCancel: dialog.setStandardButtons(QMessageBox::Ok | QMessageBox::Cancel); break;
        case MsgButtons::YesNo: dialog.setStandardButtons(QMessageBox::Yes | QMessageBox::No); break;
        case MsgButtons::YesNoCancel:
            dialog.setStandardButtons(QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel);
            break;
        case MsgButtons::RetryCancel: dialog.setStandardButtons(QMessageBox::Retry | QMessageBox::Cancel); break;
        case MsgButtons::RestoreDefaultsClose:
            dialog.setStandardButtons(QMessageBox::RestoreDefaults | QMessageBox::Close);
            dialog.setDefaultButton(QMessageBox::RestoreDefaults);
            break;
    }
    if (box.ofSession) sessionBoxes_.emplace_back(&dialog);
    const int answer = dialog.exec();
    if (box.ofSession) sessionBoxes_.pop_back();
    switch (answer) {
        case QMessageBox::Ok: return MsgResult::OK;
        case QMessageBox::Yes: return MsgResult::Yes;
        case QMessageBox::No: return MsgResult::No;
        case QMessageBox::Retry: return MsgResult::Retry;
        case QMessageBox::RestoreDefaults: return MsgResult::RestoreDefaults;
        case QMessageBox::Close: return MsgResult::Close;
        default: return box.buttons == MsgButtons::RestoreDefaultsClose ? MsgResult::Close : MsgResult::Cancel;
    }
}

void QtHost::showModal(Form& form) {
    if (ending()) return;
    auto factory = dialogs_.find(form.formName());
    if (factory == dialogs_.end())
        throw FatalError("Petalgarden", std::string("The form ") + form.formName() + " has no view.");
    form.markLoaded();
    form.Form_Load();
    if (!form.loaded() || ending()) return;
    QPointer<QDialog> dialog = factory->second(form, mainWidget_);
    dialog->adjustSize();
    if (const auto at = overTable(dialog->size())) dialog->move(*at);
    open_.push_back({&form, dialog});
    QTimer::singleShot(0, dialog, [this, &form] { dispatch([&form] { form.Form_Activate(); }); });
    dialog->exec();
    open_.pop_back();
    if (form.loaded()) form.Unload();
    delete dialog;
}

void QtHost::endSessionBoxes() {
    for (const QPointer<QMessageBox>& box : sessionBoxes_)
        if (box) box->done(QMessageBox::Cancel);
}

// Over the table a box is as wide as the table at most; before the table shows (the boxes of the
// start), as wide as a box of a few lines reads well.
int QtHost::widestBox() const {
    if (tableArea && mainWidget_ && mainWidget_->isVisible()) return tableArea().width();
    const QScreen* screen = QGuiApplication::primaryScreen();
    return std::min(kWidestAlone, screen ? screen->availableGeometry().width() / 2 : kWidestAlone);
}

// Centred on the table; one wider than the table keeps its right edge there, so that the score
// panels stay in sight; and the whole stays on the screen.
std::optional<QPoint> QtHost::overTable(QSize size) const {
    if (!tableArea || !mainWidget_ || !mainWidget_->isVisible()) return std::nullopt;
    const QRect area = tableArea();
    QPoint at(std::min(area.center().x() - size.width() / 2, area.right() + 1 - size.width()),
              area.center().y() - size.height() / 2);
    if (const QScreen* screen = mainWidget_->screen()) {
        const QRect free = screen->availableGeometry();
        at.setX(std::clamp(at.x(), free.left(), std::max(free.left(), free.right() + 1 - size.width())));
        at.setY(std::clamp(at.y(), free.top(), std::max(free.top(), free.bottom() + 1 - size.height())));
    }
    return at;
}

void QtHost::closeUnloadedDialogs() {
    for (OpenDialog& open : open_)
        if (!open.form->loaded() && open.dialog && open.dialog->isVisible()) open.dialog->done(0);
}

void QtHost::refresh() {
    if (onModelChanged) onModelChanged();
}

void QtHost::setMousePointer(int pointer) {
    if (onMousePointer) onMousePointer(pointer);
}

void QtHost::closeAll() {
    for (OpenDialog& open : open_)
        if (open.dialog) open.dialog->done(0);
}

void QtHost::playSound(const std::string& path) {
    if (!sounds_) sounds_ = std::make_unique<SoundPlayer>();
    sounds_->play(path);
}

void QtHost::showMainForm() {
    if (!sounds_) sounds_ = std::make_unique<SoundPlayer>();
    if (onModelChanged) onModelChanged();
    if (mainWidget_) mainWidget_->show();
}

// Keys go where typed keys go: to the widget with the focus, or else to the active window.
void QtHost::sendKeys(const std::string& keys) {
    QWidget* target = QApplication::focusWidget();
    if (!target) target = QApplication::activeWindow();
    if (!target) target = mainWidget_;
    if (!target) return;
    for (const auto& [key, text] : keyStrokes(keys)) {
        QCoreApplication::postEvent(target, new QKeyEvent(QEvent::KeyPress, key, Qt::NoModifier, text));
        QCoreApplication::postEvent(target, new QKeyEvent(QEvent::KeyRelease, key, Qt::NoModifier, text));
    }
}

}  // namespace petal
