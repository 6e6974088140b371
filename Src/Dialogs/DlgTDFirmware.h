#pragma once

#include "RRx/RRTypeDefs.h"

#include <QDialog>
#include <memory>

class Ui_DlgTDFirmware;

/// Brings the sensor unit to the delivered firmware: switches it to its program loader, writes all memory records,
/// reads them back, and starts the application. One record at a time from the event loop, so that the screen stays
/// alive; the user can't stop it.
class DlgTDFirmware : public QDialog {
    Q_OBJECT

public:
    /// Runs the whole upgrade. True if the records were written and verified, whether or not the application has
    /// started then; the user has been told. After a failure in between, the link is left in `MODE_PGMLDR`.
    static bool Show();

private slots:
    /// One step of the upgrade.
    void OnUpgrade();

private:
    enum State { IDENTIFYING = 0, PROGRAMMING = 1, VERIFYING = 2, COMPLETING = 3 };

    DlgTDFirmware();
    ~DlgTDFirmware() override;

    // Each is the step in its state; false if it has ended the dialog.
    bool Identify();
    bool Program();
    bool Verify();
    bool Complete();

    /// Goes on from a record that is done; false behind the last one, with the first one current again.
    bool NextRecord();
    /// Counts a failed try; false if it was the last one and has ended the dialog behind `message`.
    bool TriesAgain(const QString& message);
    /// Has the next step come from the event loop.
    void Arrange();
    /// No key ends the dialog, Escape neither.
    void keyPressEvent(QKeyEvent* event) override;

    std::unique_ptr<Ui_DlgTDFirmware> ui;
    State state = IDENTIFYING;
    RR::SInt32 index = 0; ///< the current record
    RR::SInt32 retry = 0; ///< failed tries on it
};
