#pragma once

#include "JobStateMachine.h"

#include <QDialog>
#include <memory>

class Ui_DlgEmptyDepot;

/// Lets the user choose how the storage compartment is emptied.
class DlgEmptyDepot : public QDialog {
    Q_OBJECT

public:
    /// Gives `TYPE_D` or `TYPE_E`, `TYPE_K` or `TYPE_L` with the external storage compartment, `TYPE_0` for cancel.
    static void Show(JobStateMachine::Type& type);

private slots:
    void OnButton();

private:
    DlgEmptyDepot();
    ~DlgEmptyDepot() override;

    std::unique_ptr<Ui_DlgEmptyDepot> ui;
    JobStateMachine::Type type = JobStateMachine::TYPE_0;
};
