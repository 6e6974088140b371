#pragma once

#include "JobStateMachine.h"

#include <QDialog>
#include <memory>

class Ui_DlgMeaStart;

/// Lets the user choose how the next measurement is made, and whether it is the first of a series.
class DlgMeaStart : public QDialog {
    Q_OBJECT

public:
    /// Gives `TYPE_B`, `TYPE_C`, or `TYPE_0` if the user gives up. In each case `settings` takes the options.
    static void Show(JobStateMachine::Type& type);

private slots:
    void OnAutoChanged();
    void OnButton();

private:
    DlgMeaStart();
    ~DlgMeaStart() override;

    std::unique_ptr<Ui_DlgMeaStart> ui;
    JobStateMachine::Type type = JobStateMachine::TYPE_0;
};
