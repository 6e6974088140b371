#pragma once

#include <QDialog>
#include <QTimer>
#include <memory>

class Ui_DlgStatement;

/// Tells the user something.
class DlgStatement : public QDialog {
    Q_OBJECT

public:
    /// The dialog closes itself after so many seconds.
    enum TimeoutOpt {
        UNUSED = 0,
        CLOSE_5 = 5,
        CLOSE_10 = 10,
        CLOSE_20 = 20,
        CLOSE_40 = 40,
        CLOSE_60 = 60,
        CLOSE_80 = 80,
        CLOSE_300 = 300,
        CLOSE_600 = 600
    };

    /// `text` is translated, and may be rich text; what comes from a file or a finger is to be escaped.
    static void Show(const QString& text, TimeoutOpt toOpt, bool alignCenter);

private:
    DlgStatement(const QString& text, TimeoutOpt toOpt, bool alignCenter);
    ~DlgStatement() override;

    void Resize();

    std::unique_ptr<Ui_DlgStatement> ui;
    QTimer timer;
};
