#include "platform/qt/FormDialog.h"

#include <QAbstractButton>

#include "platform/Form.h"
#include "platform/qt/QtHost.h"

namespace petal {

FormDialog::FormDialog(Form& form, QtHost& host, QWidget* parent) : QDialog(parent), host_(host), form_(form) {}

void FormDialog::forward(const std::function<void()>& handler) {
    host_.dispatch(handler);
    if (form_.loaded()) sync();
}

void FormDialog::onClick(QAbstractButton* button, std::function<void()> handler) {
    connect(button, &QAbstractButton::clicked, this, [this, handler = std::move(handler)] { forward(handler); });
}

}  // namespace petal
