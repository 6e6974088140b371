#pragma once

#include "RRx/RRArray.h"
#include "RRx/RRString.h"
#include "RRx/RRTypeDefs.h"

#include <QDialog>
#include <QStringList>
#include <memory>

class Ui_DlgNameList;

/// Shows the list of measurement names, the most recent first: to pick one, to delete some, to bring the list to a
/// USB stick or another one from there.
class DlgNameList : public QDialog {
    Q_OBJECT

public:
    static constexpr int maxNames = 500;

    /// Reads a file of names in UTF-16 behind a byte order mark, or else in Latin-1, separated by semicolon, comma or
    /// line end. `list` is empty on failure. More than `maxNames` are cut off, and the user is told.
    /// Fails for more than 32 MiB, which no list that was read takes when it is written.
    static bool LoadNameList(const char* pathFile, QStringList& list);
    /// Writes `"A","B"` in UTF-16, low byte first, behind a byte order mark. Tells the user of a full medium.
    static bool SaveNameList(const char* pathFile, const QStringList& list);
    /// The names in the content of such a file, each once: in upper case, without surrounding white space and quotes,
    /// and with an underscore for what no file name may hold. False if there are more than `maxNames`; `list` then
    /// holds the first of them.
    static bool DecodeNameList(const RR::Array<RR::UInt08>& bytes, QStringList& list);

    /// True if the user took over the state of the list; `list` is then changed accordingly and `word` is the name
    /// chosen, empty if none was. Otherwise `list` stays, and `word` is empty. No file of the card is written.
    static bool Show(QStringList& list, QString& word);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void changeEvent(QEvent* event) override;

private slots:
    void OnDeleteEntry();
    void OnImportList();
    void OnExportList();
    void OnDeleteList();
    void OnExitButton();

private:
    explicit DlgNameList(const QStringList& list);
    ~DlgNameList() override;

    void ShowNames();
    void ShowNumber();
    void ShowApplyDenyButtons();
    /// Imports from a mounted stick. Returns what to tell the user, empty for nothing.
    QString ImportFrom(const RR::String& mntPoint);

    std::unique_ptr<Ui_DlgNameList> ui;
    /// The working copy, row by row what the widget shows.
    QStringList tmpList;
};
