#pragma once

#include <QDialog>
#include <QTimer>
#include <memory>

class Ui_DlgQuestion;

/// Asks a question that two buttons answer.
class DlgQuestion : public QDialog {
    Q_OBJECT

public:
    enum Option { OK_CANCEL = 0, YES_NO = 1 };
    /// What happens when nobody answers: the sign says which answer counts, the number after how many seconds.
    enum TimeoutOpt {
        REJECT_600 = -600,
        REJECT_300 = -300,
        REJECT_80 = -80,
        REJECT_60 = -60,
        REJECT_40 = -40,
        REJECT_20 = -20,
        REJECT_10 = -10,
        UNUSED = 0,
        ACCEPT_10 = 10,
        ACCEPT_20 = 20,
        ACCEPT_40 = 40,
        ACCEPT_60 = 60,
        ACCEPT_80 = 80,
        ACCEPT_300 = 300,
        ACCEPT_600 = 600
    };

    /// True for yes. `text` is translated, and may be rich text; what comes from a file or a finger is to be escaped.
    static bool Show(const QString& text, Option option, TimeoutOpt toOpt);

private slots:
    void OnExitButton();
    void OnTimeout();

private:
    DlgQuestion(const QString& text, Option option, TimeoutOpt toOpt);
    ~DlgQuestion() override;

    void Resize();

    std::unique_ptr<Ui_DlgQuestion> ui;
    QTimer timer;
    TimeoutOpt timeoutOpt;
};
