#include "shell/SplashDialog.h"

#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QVBoxLayout>

#include "assets/PictureStore.h"
#include "platform/qt/QtHost.h"
#include "shell/FrmSplash.h"
#include "platform/Words.h"
#include "platform/qt/Language.h"

namespace petal {

namespace {

QString text(const std::string& caption) { return Language::core(caption); }

QColor fromBgr(std::uint32_t bgr) { return QColor(bgr & 0xFF, (bgr >> 8) & 0xFF, (bgr >> 16) & 0xFF); }

QLabel* styledLabel(const QString& caption, QWidget* parent, const char* family, int points, bool bold = false) {
    auto* label = new QLabel(caption, parent);
    QFont font(QString::fromLatin1(family), points);
    font.setBold(bold);
    label->setFont(font);
    return label;
}

}  // namespace

SplashDialog::SplashDialog(FrmSplash& form, QtHost& host, PictureStore& pictures, QWidget* parent)
    : FormDialog(form, host, parent), form_(form), frame1_(new QFrame(this)) {
    // A splash has no caption bar: the whole surface is the picture.
    setWindowFlags(Qt::Dialog | Qt::FramelessWindowHint);
    setWindowTitle(QStringLiteral("Petalgarden"));
    auto* outer = new QVBoxLayout(this);
    outer->setContentsMargins(0, 0, 0, 0);
    outer->addWidget(frame1_);
    frame1_->setObjectName(QStringLiteral("Frame1"));
    frame1_->setStyleSheet(QStringLiteral("#Frame1 { background: #F4ECD8; border: 3px solid #8A6A2A; }"));
    handledHere(frame1_);
    setMouseTracking(true);

    auto* row = new QHBoxLayout(frame1_);
    row->setContentsMargins(12, 12, 12, 12);
    row->setSpacing(16);
    const qreal dpr = devicePixelRatioF();
    auto picture = [&](PictureId id) {
        auto* image = new QLabel(frame1_);
        image->setPixmap(pictures.pixmap(id, dpr));
        stopsEvents(image);
        return image;
    };
    row->addWidget(picture(form.Image1));

    auto* middle = new QVBoxLayout;
    middle->setSpacing(4);
    auto* title = styledLabel(QStringLiteral("Petalgarden"), frame1_, "Liberation Serif", 30, true);
    title->setStyleSheet(QStringLiteral("color: #7A1E16;"));
    stopsEvents(title);
    middle->addWidget(title, 0, Qt::AlignHCenter);
    auto* version = styledLabel(Language::core(PETAL_TR("core", "Version %1")).arg(QString::fromStdString(form.lblVersion.Caption)), frame1_, "Liberation Sans", 10, true);
    version->setObjectName(QStringLiteral("lblVersion"));
    auto* platform = styledLabel(text(form.lblPlatform.Caption), frame1_, "Liberation Sans", 9);
    platform->setObjectName(QStringLiteral("lblPlatform"));
    for (QLabel* label : {version, platform}) {
        stopsEvents(label);
        middle->addWidget(label, 0, Qt::AlignHCenter);
    }
    middle->addSpacing(8);
    middle->addWidget(buildCredits(frame1_));
    middle->addStretch();
    close_ = styledLabel(text(form.lblCloseSplash.Caption), frame1_, "Liberation Sans", 9, true);
    close_->setObjectName(QStringLiteral("lblCloseSplash"));
    handledHere(close_);
    middle->addWidget(close_, 0, Qt::AlignRight);
    row->addLayout(middle, 1);
    row->addWidget(picture(form.Image2));

    sync();
    setFixedSize(sizeHint());
}

QWidget* SplashDialog::buildCredits(QWidget* parent) {
    auto* fraComments = new QFrame(parent);
    fraComments->setObjectName(QStringLiteral("fraComments"));
    fraComments->setStyleSheet(QStringLiteral("#fraComments { border: 1px solid #B89A5A; }"));
    stopsEvents(fraComments);
    auto* grid = new QGridLayout(fraComments);
    grid->setHorizontalSpacing(12);
    for (int i = 0; i < 6; ++i) {
        // Headings on the left, what they name on the right.
        label1_[i] = styledLabel(text(form_.Label1[i].Caption), fraComments, "Liberation Sans", 9, i % 2 == 0);
        handledHere(label1_[i]);
        grid->addWidget(label1_[i], i / 2, i % 2);
    }
    auto* rights = styledLabel(text(form_.lblRights.Caption), fraComments, "Liberation Sans", 8);
    rights->setWordWrap(true);
    stopsEvents(rights);
    grid->addWidget(rights, 3, 0, 1, 2);
    return fraComments;
}

void SplashDialog::handledHere(QWidget* child) {
    child->setMouseTracking(true);
    child->installEventFilter(this);
    if (child != frame1_) child->setAttribute(Qt::WA_NoMousePropagation);
}

void SplashDialog::stopsEvents(QWidget* child) {
    child->setMouseTracking(true);
    child->setAttribute(Qt::WA_NoMousePropagation);
}

void SplashDialog::sync() {
    close_->setVisible(form_.lblCloseSplash.Visible);
    QPalette palette = close_->palette();
    palette.setColor(QPalette::WindowText, fromBgr(form_.lblCloseSplash.ForeColor));
    close_->setPalette(palette);
}

bool SplashDialog::eventFilter(QObject* watched, QEvent* event) {
    const bool move = event->type() == QEvent::MouseMove;
    const bool click = event->type() == QEvent::MouseButtonRelease &&
                       static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton &&
                       static_cast<QWidget*>(watched)->rect().contains(static_cast<QMouseEvent*>(event)->position().toPoint());
    if (!move && !click) return FormDialog::eventFilter(watched, event);
    if (watched == close_) {
        forward([this, click] { click ? form_.lblCloseSplash_Click() : form_.lblCloseSplash_MouseMove(); });
    } else if (watched == frame1_) {
        forward([this, click] { click ? form_.Frame1_Click() : form_.Frame1_MouseMove(); });
    } else {
        for (int i = 0; i < 6; ++i)
            if (watched == label1_[i] && move) forward([this, i] { form_.Label1_MouseMove(i); });
    }
    return true;
}

void SplashDialog::mouseMoveEvent(QMouseEvent*) {
    forward([this] { form_.Form_MouseMove(); });
}

// Any key that types a character closes the form, Escape and Enter among them.
void SplashDialog::keyPressEvent(QKeyEvent* event) {
    const QString typed = event->text();
    if (typed.isEmpty()) {
        FormDialog::keyPressEvent(event);
        return;
    }
    const int ascii = typed.at(0).unicode();
    forward([this, ascii] { form_.Form_KeyPress(ascii); });
}

void SplashDialog::reject() {
    forward([this] { form_.Unload(true); });
}

}  // namespace petal
