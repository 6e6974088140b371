#include "Dialogs/DlgTDFirmware.h"

#include "Dialogs/DlgShared.h"
#include "Dialogs/DlgStatement.h"
#include "TDFirmware.h"
#include "ui_DlgTDFirmware.h"

#include <algorithm>
#include <QKeyEvent>
#include <QTimer>

using RR::SInt32;

namespace {

constexpr SInt32 maxTries = 10;

bool ProgrammingMemRecord(const MemRecord& record)
{
    if (record.num < 1) {
        return true;
    }
    RR::Array<unsigned char> data(record.num);
    std::copy_n(record.data, record.num, data.Adr());
    return tavorDev.Write(record.loc, data);
}

bool VerifyingMemRecord(const MemRecord& record)
{
    if (record.num < 1) {
        return true;
    }
    RR::Array<unsigned char> data(record.num);
    return tavorDev.Read(record.loc, data) && std::equal(record.data, record.data + record.num, data.Adr());
}

QString TwoHexDigits(SInt32 value)
{
    return QStringLiteral("%1").arg(value, 2, 16, QLatin1Char('0'));
}

}

DlgTDFirmware::DlgTDFirmware() : QDialog(DlgShared::Parent(), Qt::FramelessWindowHint), ui(new Ui_DlgTDFirmware)
{
    ui->setupUi(this);
    DlgShared::Center(*this);
    ui->progress->setMaximum(TDFW_DATA_TABLE_SIZE);
    ui->progress->setValue(0);
}

DlgTDFirmware::~DlgTDFirmware() = default;

bool DlgTDFirmware::Show()
{
    DlgTDFirmware dialog;
    dialog.Arrange();
    return dialog.exec() == Accepted;
}

void DlgTDFirmware::Arrange()
{
    QTimer::singleShot(1, this, &DlgTDFirmware::OnUpgrade);
}

void DlgTDFirmware::OnUpgrade()
{
    bool goesOn = false;
    switch (state) {
    case IDENTIFYING:
        goesOn = Identify();
        break;
    case PROGRAMMING:
        goesOn = Program();
        break;
    case VERIFYING:
        goesOn = Verify();
        break;
    case COMPLETING:
        goesOn = Complete();
        break;
    default:
        RR_ASSERT(false);
    }
    if (goesOn) {
        ui->progress->setValue(index);
        Arrange();
    }
}

bool DlgTDFirmware::Identify()
{
    tavorDev.Disconnect();
    if (tavorDev.Connect(TavorDev::MODE_PGMLDR)) {
        ui->infoText->setText(tr("Programmierung ..."));
        RR::Log("[ZARN] Tavor device: Programming ...");
        RR::LogFlush();
        index = retry = 0;
        state = PROGRAMMING;
        return true;
    }
    RR::Log("[ZARN] Tavor device: Entering program loader mode ... failed ");
    QString message;
    TavorDev::Info info;
    if (!tavorDev.GetDevInfo(info)) {
        RR::Log("(device not found)\n");
        message = tr("Keine Sensoreinheit gefunden");
    } else if (info.boardType != TDFW_INFO.boardType) {
        RR::Log("(incompatible board type)\n");
        message = tr("Falscher Boardtyp\n\nGefunden: 0x%1, Vorgesehen: 0x%2\n")
                      .arg(TwoHexDigits(info.boardType), TwoHexDigits(TDFW_INFO.boardType));
    } else {
        RR::Log("(no program loader module)\n");
        message = tr("Kein Programmlader-Modul gefunden");
    }
    tavorDev.Connect(TavorDev::MODE_APPL);
    DlgStatement::Show(message, DlgStatement::CLOSE_60, true);
    reject();
    return false;
}

bool DlgTDFirmware::Program()
{
    if (!ProgrammingMemRecord(TDFW_DATA_TABLE[index])) {
        return TriesAgain(tr("Fehler bei Programmierung"));
    }
    if (!NextRecord()) {
        ui->infoText->setText(tr("Verifizierung ..."));
        RR::Log(" done\n[ZARN] Tavor device: Verifying   ...");
        RR::LogFlush();
        state = VERIFYING;
    }
    return true;
}

bool DlgTDFirmware::Verify()
{
    const MemRecord& record = TDFW_DATA_TABLE[index];
    if (!VerifyingMemRecord(record) && !VerifyingMemRecord(record)) {
        ProgrammingMemRecord(record); // whether it helped shows in the next step
        return TriesAgain(tr("Verifizierungsfehler"));
    }
    if (!NextRecord()) {
        state = COMPLETING;
        ui->infoText->setText(tr("Abgeschlossen"));
        RR::Log(" done\n");
    }
    return true;
}

bool DlgTDFirmware::Complete()
{
    QString message = tr("\nAktualisierung erfolgreich\n");
    if (!tavorDev.Connect(TavorDev::MODE_APPL)) {
        RR::Log("[ZARN] Enter application ... failed\n");
        message = tr("Fehler bei Programmierung der Sensoreinheit");
    }
    DlgStatement::Show(message, DlgStatement::CLOSE_10, true);
    accept();
    return false;
}

bool DlgTDFirmware::NextRecord()
{
    retry = 0;
    if (++index < TDFW_DATA_TABLE_SIZE) {
        return true;
    }
    index = 0;
    return false;
}

bool DlgTDFirmware::TriesAgain(const QString& message)
{
    ++retry;
    RR::Log(".");
    RR::LogFlush();
    if (retry < maxTries) {
        return true;
    }
    RR::Log(" failed\n");
    DlgStatement::Show(message, DlgStatement::CLOSE_60, true);
    // The application in the unit can't be trusted: the next connection finds the loader.
    tavorDev.Connect(TavorDev::MODE_PGMLDR);
    reject();
    return false;
}

void DlgTDFirmware::keyPressEvent(QKeyEvent* event)
{
    event->accept();
}
