#pragma once

#include "Dialogs/DlgQuestion.h"
#include "Types.h"

#include <QDialog>
#include <QTimer>
#include <memory>

class Ui_DlgSaveAs;

/// Asks in which form measurements go to the stick.
class DlgSaveAs : public QDialog {
    Q_OBJECT

public:
    /// What happens when nobody answers.
    using TimeoutOpt = DlgQuestion::TimeoutOpt;
    using enum DlgQuestion::TimeoutOpt;

    /// True if the user accepts; `format` is what the dialog starts with, and only then takes the choice.
    /// `header` is shown as it is.
    static bool Show(const QString& header, MeaTransFormat& format, TimeoutOpt toOpt);

private slots:
    void OnExitButton();
    void OnTimeout();

private:
    DlgSaveAs(const QString& header, MeaTransFormat format, TimeoutOpt toOpt);
    ~DlgSaveAs() override;

    std::unique_ptr<Ui_DlgSaveAs> ui;
    QTimer timer;
    TimeoutOpt timeoutOpt;
};
