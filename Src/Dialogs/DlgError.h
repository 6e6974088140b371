#pragma once

#include <QDialog>
#include <memory>

class Ui_DlgError;

/// Tells of a failure, and stays until the user has seen it.
class DlgError : public QDialog {
    Q_OBJECT

public:
    /// `text` is translated, and may be rich text; `errNoText`, shown below it as it is, says where it happened.
    static void Show(const QString& text, const QString& errNoText);

private:
    DlgError(const QString& text, const QString& errNoText);
    ~DlgError() override;

    std::unique_ptr<Ui_DlgError> ui;
};
