#pragma once

#include "Types.h"

#include <QDialog>
#include <memory>

class QString;
class Settings;
class Ui_DlgInspJobStart;

/// Sets up a test sequence of the inspection. Its texts are not translated.
class DlgInspJobStart : public QDialog {
    Q_OBJECT

public:
    /// The chosen sequence, which `settings` remember; of type `IJ_NONE` for cancel. Passes and time stay at their
    /// defaults for the sequences that have none.
    static InspJob Show();

protected:
    /// The labels lie on their check boxes, which would take a touch at their own mark alone.
    bool eventFilter(QObject* watched, QEvent* event) override;

private slots:
    void OnExitButton();
    void OnSensPassageTime(const QString& text);
    void OnSetFactoryDefaults();

private:
    DlgInspJobStart();
    ~DlgInspJobStart() override;

    void TakeChoice(const Settings& from);
    InspJobType GetChoice() const;

    std::unique_ptr<Ui_DlgInspJobStart> ui;
};
