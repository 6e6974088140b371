#include "Dialogs/DlgNameList.h"

#include "Config.h"
#include "Dialogs/DlgFileList.h"
#include "Dialogs/DlgPlugUsbDev.h"
#include "Dialogs/DlgQuestion.h"
#include "Dialogs/DlgShared.h"
#include "Dialogs/DlgStatement.h"
#include "Globals.h"
#include "RRx/RRFile.h"
#include "ui_DlgNameList.h"

#include <QStringDecoder>

namespace {

/// An imported name may have any length, but only so many letters of it are laid out.
QString Shown(const QString& name)
{
    constexpr qsizetype shownLetters = 128;
    return name.size() > shownLetters ? name.left(shownLetters) + QChar(0x2026) : name;
}

/// Names on a stick are UTF-8 on most systems; what isn't is taken as Latin-1.
QString ShownFileName(const RR::String& name)
{
    QStringDecoder decode(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    const QString text = decode(QByteArrayView(name.Adr(), name.GetLen()));
    return decode.hasError() ? QString::fromLatin1(name.Adr(), name.GetLen()) : text;
}

bool IsConfirmed(const QString& question)
{
    return DlgQuestion::Show(DlgShared::AsWritten(question), DlgQuestion::YES_NO, DlgQuestion::REJECT_20);
}

void Tell(const QString& text)
{
    DlgStatement::Show(DlgShared::AsWritten(text), DlgStatement::CLOSE_20, true);
}

}

DlgNameList::DlgNameList(const QStringList& list)
    : QDialog(DlgShared::Parent(), Qt::FramelessWindowHint), ui(new Ui_DlgNameList), tmpList(list)
{
    ui->setupUi(this);
    DlgShared::Center(*this);
    connect(ui->deleteEntry, &QPushButton::clicked, this, &DlgNameList::OnDeleteEntry);
    connect(ui->importList, &QPushButton::clicked, this, &DlgNameList::OnImportList);
    connect(ui->exportList, &QPushButton::clicked, this, &DlgNameList::OnExportList);
    connect(ui->deleteList, &QPushButton::clicked, this, &DlgNameList::OnDeleteList);
    for (const QPushButton* button : {ui->buttonApply, ui->buttonClose, ui->buttonDeny}) {
        connect(button, &QPushButton::clicked, this, &DlgNameList::OnExitButton);
    }
    ui->nameList->viewport()->installEventFilter(this);
    ui->buttonApply->hide();
    ui->buttonDeny->hide();
    ShowNames();
    ShowNumber();
}

DlgNameList::~DlgNameList() = default;

bool DlgNameList::Show(QStringList& list, QString& word)
{
    DlgNameList dialog(list);
    word.clear();
    if (dialog.exec() != Accepted) {
        return false;
    }
    const int row = dialog.ui->nameList->currentRow();
    if (row >= 0) {
        word = dialog.tmpList[row];
    }
    list = dialog.tmpList;
    return true;
}

void DlgNameList::ShowNames()
{
    ui->nameList->clear();
    for (const QString& name : tmpList) {
        ui->nameList->addItem(Shown(name));
    }
    ui->exportList->setEnabled(!tmpList.isEmpty());
    ui->deleteList->setEnabled(!tmpList.isEmpty());
}

void DlgNameList::ShowNumber()
{
    ui->headerTxtNum->setText(QStringLiteral("(%1)").arg(tmpList.size()));
}

void DlgNameList::ShowApplyDenyButtons()
{
    ui->buttonApply->show();
    ui->buttonClose->hide();
    ui->buttonDeny->show();
}

bool DlgNameList::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == ui->nameList->viewport() && event->type() == QEvent::MouseButtonRelease) {
        ui->deleteEntry->setEnabled(true);
        ShowApplyDenyButtons();
    }
    return QDialog::eventFilter(watched, event);
}

void DlgNameList::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange) {
        ui->retranslateUi(this);
    }
    QDialog::changeEvent(event);
}

void DlgNameList::OnExitButton()
{
    if (sender() == ui->buttonDeny) {
        reject();
    } else {
        accept();
    }
}

void DlgNameList::OnDeleteEntry()
{
    const int row = ui->nameList->currentRow();
    if (row < 0 || !IsConfirmed(tr("Eintrag\n\n%1\n\naus Liste entfernen?").arg(Shown(tmpList[row])))) {
        return;
    }
    tmpList.removeAt(row);
    delete ui->nameList->takeItem(row);
    for (QPushButton* button : {ui->deleteEntry, ui->exportList, ui->deleteList}) {
        button->setEnabled(!tmpList.isEmpty());
    }
    ShowApplyDenyButtons();
    ShowNumber();
}

void DlgNameList::OnDeleteList()
{
    if (!IsConfirmed(tr("Liste der Messungsnamen komplett löschen?"))) {
        return;
    }
    tmpList.clear();
    ShowNames();
    ui->deleteEntry->setEnabled(false);
    ShowApplyDenyButtons();
    ShowNumber();
}

void DlgNameList::OnExportList()
{
    if (!IsConfirmed(tr("Liste der Messungsnamen exportieren?"))) {
        return;
    }
    RR::Log("[ZARN] Export name list\n");
    RR::String mntPoint;
    if (!DlgPlugUsbDev::Show(mntPoint)) {
        return;
    }
    const bool saved = SaveNameList(RR::PATH_Merge(mntPoint, CFG::MeaNameListFile), tmpList);
    Unmount(mntPoint);
    Tell(saved ? tr("Kopiervorgang abgeschlossen") : tr("Kopiervorgang fehlgeschlagen"));
}

void DlgNameList::OnImportList()
{
    if (!IsConfirmed(tr("Liste mit Messungsnamen importieren?"))) {
        return;
    }
    RR::Log("[ZARN] Import name list\n");
    RR::String mntPoint;
    if (!DlgPlugUsbDev::Show(mntPoint)) {
        return;
    }
    const QString note = ImportFrom(mntPoint);
    Unmount(mntPoint);
    if (!note.isEmpty()) {
        Tell(note);
    }
    ShowNumber();
}

QString DlgNameList::ImportFrom(const RR::String& mntPoint)
{
    RR::List<RR::FileInfo> files;
    if (!RR::DIR_List(RR::PATH_Merge(mntPoint, "*.csv"), files, RR::DIR_FILES)) {
        RR::Log("[ZARN] Directory read error\n");
        return tr("Fehler ...\n\nInhalt des USB Wechseldatenträgers\nkann nicht gelesen werden");
    }
    if (files.IsEmpty()) {
        RR::Log("[ZARN] No \"csv\" file found\n");
        return tr("Keine Datei mit Endung \".csv\" vorgefunden");
    }

    QList<RR::String> names;
    QStringList shownNames;
    for (auto file = files.First(); !file.IsNil(); file.Next()) {
        names.append(RR::PATH_GetFile(file().pathFile));
        // Two encodings of one name look the same; the list hands back what it shows.
        const QString shown = ShownFileName(names.last());
        QString unique = shown;
        for (int n = 2; shownNames.contains(unique); ++n) {
            unique = QStringLiteral("%1 (%2)").arg(shown).arg(n);
        }
        shownNames.append(unique);
    }
    QString chosen;
    if (!DlgFileList::Show(tr("Verfügbare Dateien"), shownNames, chosen)) {
        return QString();
    }
    const qsizetype index = shownNames.indexOf(chosen);
    const RR::String name = index < 0 ? RR::String() : names[index];

    // The names shown stay when the file can't be read.
    QStringList imported;
    if (!LoadNameList(RR::PATH_Merge(mntPoint, name), imported)) {
        RR::Log("[ZARN] Error reading file %s\n", name.Adr());
        return tr("Datei \"%1\" kann nicht gelesen werden").arg(chosen);
    }
    tmpList = imported;
    tmpList.sort();
    ShowNames();
    ShowApplyDenyButtons();
    const int count = static_cast<int>(tmpList.size());
    RR::Log("[ZARN] List (%d entries) imported\n", count);
    return count == 0 ? tr("Keine Einträge gefunden") : tr("%1 Einträge gefunden").arg(count);
}
