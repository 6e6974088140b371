#pragma once

#include "JobStateMachine.h"

#include <QDialog>
#include <memory>

class Ui_DlgMeaFollowUp;

/// Asks what is to become of the gas that a measurement has left in the storage compartment.
class DlgMeaFollowUp : public QDialog {
    Q_OBJECT

public:
    /// `TYPE_B` for another measurement, `TYPE_D` or `TYPE_E` to empty the storage compartment, `TYPE_0` for nothing.
    static JobStateMachine::Type Show();

private slots:
    void OnButton();

private:
    DlgMeaFollowUp();
    ~DlgMeaFollowUp() override;

    std::unique_ptr<Ui_DlgMeaFollowUp> ui;
    JobStateMachine::Type type = JobStateMachine::TYPE_0;
};
