#pragma once

#include <QDialog>
#include <QStringList>
#include <memory>

class Ui_DlgKeyboard;

/// Lets the user type a name on the screen. The names of earlier measurements are offered while he types, and in a
/// list.
class DlgKeyboard : public QDialog {
    Q_OBJECT

public:
    /// True if the user accepted; `word`, what the line shows first, is then what he typed, `maxLetter` letters at
    /// most, and stands at the head of the list of names on the card, unless there is one that can't be read.
    /// Otherwise word and file stay as they are.
    static bool Show(const QString& title, QString& word, int maxLetter);

protected:
    /// Lets keys be pressed while names are offered, where the pop-up would swallow the first touch.
    bool eventFilter(QObject* watched, QEvent* event) override;
    void changeEvent(QEvent* event) override;

private slots:
    void OnEditButton();
    void OnListButton();
    void OnKeyButton();
    void OnCursorButton();
    void OnExitButton();

private:
    explicit DlgKeyboard(const QString& title);
    ~DlgKeyboard() override;

    void SetUpCompleter(int maxLetter);
    /// Tells the style sheet which keys need smaller letters, since they type a whole word.
    void MarkWords();
    /// Shows the names that begin with the text of the line, if there are any.
    void OfferNames();

    std::unique_ptr<Ui_DlgKeyboard> ui;
    /// In the order of the file, the most recent first.
    QStringList nameList;
};
