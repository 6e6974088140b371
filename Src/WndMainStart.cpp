#include "WndMain.h"

#include "Dialogs/DlgInnerPressWarning.h"
#include "Dialogs/DlgSensorInfo.h"
#include "Dialogs/DlgShutdown.h"
#include "Dialogs/DlgStatement.h"
#include "Dialogs/DlgTDFirmware.h"
#include "Globals.h"
#include "TDFirmware.h"
#include "TavorDev.h"
#include "ui_WndMain.h"

using RR::DateTime;

namespace {

constexpr int reconnectMs = 2000;
constexpr int inoperableSecs = 30;

/// A clock that was never set, or lost its battery, stands before 2001.
bool IsGood(const DateTime& clock)
{
    return clock.IsValid() && clock.GetYear() > 2000;
}

void LogTime(const char* format, const DateTime& time)
{
    char text[] = "MME-DD-YYYY hh:mm:ss";
    time.Export(text);
    RR::Log(format, text);
}

}

void WndMain::On2ndStage()
{
    if (!tavorDev.Connect(TavorDev::MODE_APPL)) {
        // A unit without a valid application answers from its program loader.
        tavorDev.Connect(TavorDev::MODE_PGMLDR);
    }
    CheckFirmware();
    if (tavorDev.GetMode() == TavorDev::MODE_APPL) {
        SynchronizeClocks();
    }
    UpdateMeaTab();
    ui->meaTable->scrollToBottom();
    WarnOfSensorService();
    if (!DlgInnerPressWarning::InnerPressureBalanced()) {
        RR::Log("[ZARN] System pressure out of limit\n");
        if (!WarnOfInnerPressure()) {
            return;
        }
    }
    if (inspectionMode) {
        RR::Log("[ZARN] Preparation skipped (inspection mode)\n");
        ui->startMea->setEnabled(true);
        ui->emptyDepot->setEnabled(true);
    } else if (tavorDev.GetMode() == TavorDev::MODE_APPL) {
        jobSTM.Start(JobStateMachine::TYPE_H);
    }
}

void WndMain::CheckFirmware()
{
    switch (tavorDev.GetMode()) {
    case TavorDev::MODE_APPL: {
        TavorDev::Info info;
        tavorDev.GetDevInfo(info);
        SVersion needed = TDFW_INFO.applVers;
        if (info.applVers != needed) {
            RR::Log("[ZARN] TDev version disparity (has: %s, need: %s)\n", info.applVers.ToStr(), needed.ToStr());
            DlgTDFirmware::Show();
        }
        break;
    }
    case TavorDev::MODE_PGMLDR:
        DlgTDFirmware::Show();
        break;
    default:
        ui->statusInoperableSymb->show();
        ShowStatusBarMsg(tr("Gerät nicht betriebsbereit"), inoperableSecs);
        DlgStatement::Show(tr("Keine Sensoreinheit gefunden"), DlgStatement::CLOSE_60, true);
        QTimer::singleShot(reconnectMs, this, &WndMain::OnReconnectTavorDev);
        PlaceSensorOutputFields();
    }
}

void WndMain::SynchronizeClocks()
{
    const DateTime board = DateTime::Now();
    const DateTime unit = tavorDev.GetRTC();
    if (IsGood(board) && IsGood(unit)) {
        LogTime("[ZARN] Tavor RTC: %s\n", unit);
    } else if (IsGood(board)) {
        LogTime("[ZARN] Synchronize clocks: TDev from HMI (%s)\n", board);
        tavorDev.SetRTC(board);
    } else if (IsGood(unit)) {
        LogTime("[ZARN] Synchronize clocks: HMI from TDev (%s)\n", unit);
        SetClock(unit);
    }
}

void WndMain::WarnOfSensorService()
{
    constexpr RR::SInt32 warningDays = 30;
    const QString names[TavorDev::SENSOR_NUM] = {QStringLiteral("SF<sub>6</sub>"), QStringLiteral("SO<sub>2</sub>"), tr("Feuchte"),
        QStringLiteral("HF"), QStringLiteral("CO"), {}, QStringLiteral("H<sub>2</sub>S"), {}};
    QString items;
    int count = 0;
    for (RR::SInt32 i = 0; i < TavorDev::SENSOR_NUM; ++i) {
        const RR::SInt32 days = DlgSensorInfo::GetCalRemainingDays(tavorDev.GetSensorProfile(static_cast<TavorDev::Sensor>(i)));
        if (days == RR::INVALID || days > warningDays) {
            continue;
        }
        const QString remark = days >= 0 ? tr(" (läuft in %1 Tagen ab)").arg(days) : tr(" (%1 Tage überfällig)").arg(-days);
        items += "<li>" + names[i] + remark + "</li>";
        ++count;
    }
    if (count > 0) {
        const QString heading = count == 1 ? tr("Wartung empfohlen für folgenden Sensor:") : tr("Wartung empfohlen für folgende Sensoren:");
        DlgStatement::Show(heading + "<br><ul>" + items + "</ul>", DlgStatement::CLOSE_40, false);
    }
}

void WndMain::OnReconnectTavorDev()
{
    if (tavorDev.Connect(TavorDev::MODE_APPL)) {
        return;
    }
    if (tavorDev.GetMode() == TavorDev::MODE_PGMLDR) {
        RR::Log("[ZARN] Tavor device in program loader mode\n");
        return;
    }
    RR::Log("[ZARN] Connect to Tavor device failed\n");
    QTimer::singleShot(reconnectMs, this, &WndMain::OnReconnectTavorDev);
}

void WndMain::OnTavorDevConnected()
{
    if (tavorDev.GetMode() != TavorDev::MODE_PGMLDR) {
        UpdateSensors();
        PlaceSensorOutputFields();
        ui->statusInoperableSymb->hide();
    }
}

void WndMain::OnTavorDevDisconnected()
{
    PlaceSensorOutputFields();
    ShowStatusBarMsg(tr("Gerät nicht betriebsbereit"), inoperableSecs);
}

void WndMain::OnTavorDevLost()
{
    RR::Log("[ZARN] Tavor device lost\n");
    PlaceSensorOutputFields();
    ShowStatusBarMsg(tr("Sensoreinheit ausgefallen"), RR::INVALID);
}

void WndMain::OnTavorDevRecovered()
{
    RR::Log("[ZARN] Tavor device recovered\n");
    PlaceSensorOutputFields();
    StatusMsg(tr("Sensoreinheit wieder in Betrieb"));
}

void WndMain::OnTavorDevChanged()
{
    UpdateSensors();
}

void WndMain::OnShutdown()
{
    if (DlgShutdown::Show()) {
        close();
    }
}
