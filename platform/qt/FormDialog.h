#pragma once
// The common ground of the form dialogs: input runs a handler of the form model on the host,
// and the widgets are brought in line with the model afterwards.
#include <QDialog>
#include <functional>

class QAbstractButton;

namespace petal {

class Form;
class QtHost;

class FormDialog : public QDialog {
    Q_OBJECT
public:
    FormDialog(Form& form, QtHost& host, QWidget* parent);

protected:
    void forward(const std::function<void()>& handler);
    // A button that runs a handler of the form.
    void onClick(QAbstractButton* button, std::function<void()> handler);
    // Redraws the widgets from the model; the dialog closes by itself when the form unloads.
    virtual void sync() {}

    QtHost& host_;

private:
    Form& form_;
};

}  // namespace petal
