#include "WndMain.h"

#include "Config.h"
#include "Dialogs/DlgLowBatt.h"
#include "Dialogs/DlgShutdown.h"
#include "Dialogs/DlgStatement.h"
#include "Globals.h"
#include "PrintIt.h"
#include "TavorDev.h"
#include "ui_WndMain.h"

#include <algorithm>

// What goes on beside the jobs: the status bar, and the two handlers that watch over the instrument.

using Jobs = JobStateMachine;

namespace {

// Pages of the supply symbol; 0 to 3 follow one another while the battery is charged.
constexpr int pageCharging = 0;
constexpr int chargingPages = 4;
constexpr int pageCharged = 4;
constexpr int pageBattery = 5;
constexpr int pageBatteryBlink = 6;
constexpr int pageUnknown = 7;

constexpr int pageOf[] = {pageBattery, pageCharging, pageCharged, pageUnknown};

QString TwoDigits(int value)
{
    return QStringLiteral("%1").arg(value, 2, 10, QLatin1Char('0'));
}

/// A failed reading counts as full: it is not to raise an alarm.
RR::FixPnt1 BatteryVoltage(const TavorDev::SupplyInfo& supply)
{
    return supply.voltage < 0.0 ? RR::FixPnt1(100.0) : supply.voltage;
}

}

void WndMain::OnSecTimeout()
{
    static bool blockEvent = false;
    static RR::SInt32 lastMin = RR::INVALID;
    if (blockEvent || DlgShutdown::IsShuttingDown()) {
        return;
    }
    CountDownSeries();
    const RR::DateTime now = RR::DateTime::Now();
    if (now.GetMinute() != lastMin) {
        lastMin = now.GetMinute();
        ShowStatusTime(now);
    }
    const TavorDev::SupplyInfo supply = tavorDev.GetSupplyInfo();
    ShowSupply(supply);
    blockEvent = true;
    const bool empty = ShutsOffBatteryEmpty(supply);
    blockEvent = false;
    if (!empty) {
        ShowBusy();
        StartNextOfSeries();
    }
}

void WndMain::CountDownSeries()
{
    if (autoMeaType == Jobs::TYPE_0) {
        return;
    }
    QString left;
    if (autoMeaPause != none) {
        autoMeaPause = autoMeaPause > 0 ? autoMeaPause - 1 : autoMeaPause;
        if (autoMeaInterval > 3540) {
            left = QStringLiteral("%1h ").arg(autoMeaPause / 3600);
        }
        left += TwoDigits(autoMeaPause / 60 % 60) + ':' + TwoDigits(autoMeaPause % 60);
    }
    ui->statusAutoMeaTimer->setText(left);
    ui->statusAutoMeaCount->setText(QStringLiteral("%1/%2").arg(autoMeaActualNum).arg(autoMeasMaxNum));
}

void WndMain::ShowSupply(const TavorDev::SupplyInfo& supply)
{
    static TavorDev::SupplySource supplySource = TavorDev::SUPSRC_UNKNOWN;
    static bool lowBatt = true;
    static RR::UInt08 powerSrcAnim = 0;
    const bool actLowBatt = BatteryVoltage(supply) < CFG::LowBattWarning;
    if (supply.source != supplySource || actLowBatt != lowBatt) {
        supplySource = supply.source;
        lowBatt = actLowBatt;
        ui->statusSupplyInfo->setCurrentIndex(pageOf[supplySource]);
    }
    if (supplySource == TavorDev::SUPSRC_LINE_AND_CHARGING) {
        powerSrcAnim = powerSrcAnim + 1 < chargingPages ? powerSrcAnim + 1 : 0;
        ui->statusSupplyInfo->setCurrentIndex(pageCharging + powerSrcAnim);
    } else if (supplySource == TavorDev::SUPSRC_BATTERY && lowBatt) {
        ui->statusSupplyInfo->setCurrentIndex(powerSrcAnim % 2 ? pageBattery : pageBatteryBlink);
        ++powerSrcAnim;
    }
}

bool WndMain::ShutsOffBatteryEmpty(const TavorDev::SupplyInfo& supply)
{
    const RR::FixPnt1 voltage = BatteryVoltage(supply);
    if (supply.source != TavorDev::SUPSRC_BATTERY || !(voltage < CFG::LowBattLimit)) {
        return false;
    }
    jobSTM.Stop();
    DlgLowBatt::Show(tr("Bitte Akku laden"), DlgLowBatt::CLOSE_300, true);
    if (tavorDev.GetSupplyInfo().source != TavorDev::SUPSRC_BATTERY) {
        return false;
    }
    RR::Log("[ZARN] Battery voltage (%sV) below limit (%sV), device shut off\n", PrintNum(voltage, 5).Adr(), PrintNum(CFG::LowBattLimit, 5).Adr());
    close();
    return true;
}

void WndMain::ShowBusy()
{
    const Jobs::Type type = jobSTM.GetType();
    if (jobSTM.IsRunning()) {
        ui->meaBusyAnim->setCurrentIndex(RR::DateTime::Now().GetSecond() % 2);
    }
    const bool measuring = jobSTM.IsRunning() && (type == Jobs::TYPE_B || type == Jobs::TYPE_C);
    if (measuring) {
        char text[] = "mm:ss";
        jobSTM.GetRemaining().Export(text);
        ui->meaRemainingTime->setText(QString::fromLatin1(text));
    }
    ui->meaRemainingTime->setVisible(measuring);
}

void WndMain::StartNextOfSeries()
{
    if (autoMeaPause == 0 && !jobSTM.IsRunning() && autoMeaType != Jobs::TYPE_0) {
        autoMeaPause = none;
        doAutoPumpBack = doAutoPumpBack || autoMeaType == Jobs::TYPE_B;
        jobSTM.Start(autoMeaType);
    }
}

void WndMain::OnSensSupervisionTimeout()
{
    static TavorDev::SensorProfile refProfile[TavorDev::SENSOR_NUM];
    static bool blockEvent = false;
    if (blockEvent || jobSTM.IsRunning() || DlgShutdown::IsShuttingDown()) {
        return;
    }
    bool changed = false;
    for (RR::SInt32 i = 0; i < TavorDev::SENSOR_NUM; ++i) {
        const TavorDev::SensorProfile profile = tavorDev.GetSensorProfile(static_cast<TavorDev::Sensor>(i));
        if (profile != refProfile[i]) {
            refProfile[i] = profile;
            changed = true;
        }
    }
    if (changed) {
        EquipControls();
        PlaceSensorOutputFields();
    }
    blockEvent = true;
    CheckCalibrationGas();
    blockEvent = false;
}

/// The selection may stand at a gas that the sensor has refused.
void WndMain::CheckCalibrationGas()
{
    constexpr RR::UInt08 noSelection = 255;
    const RR::UInt08 tag = tavorDev.GetSensorProfile(TavorDev::SENSOR_SF6).tag;
    const int selected = ui->setSF6Calibr->currentIndex();
    if (!ui->setSF6Calibr->isEnabled() || tag == noSelection || selected == tag || selected < 0 || selected > 1) {
        return;
    }
    const QString gas = selected == 0 ? QStringLiteral("N<sub>2</sub>") : QStringLiteral("CF<sub>4</sub>");
    DlgStatement::Show(tr("Kalibrierungseinstellung\nSF<sub>6</sub> in %1\nwird nicht unterstützt.").arg(gas), DlgStatement::CLOSE_60, true);
    ui->setSF6Calibr->setCurrentIndex(tag);
}

void WndMain::ShowStatusBarMsg(const QString& msg, RR::SInt32 time)
{
    ui->statusMessageText->setText(msg);
    if (time != RR::INVALID) {
        statusMessageTimer.start(std::clamp(time, 0, 3600) * 1000);
    }
    ui->statusMsgStack->setCurrentIndex(0);
}

void WndMain::OnStatusMessageTimeout()
{
    ui->statusMessageText->clear();
    ui->statusMsgStack->setCurrentIndex(autoMeaType != Jobs::TYPE_0 ? 1 : inspJob.type != IJ_NONE ? 2 : 0);
}

void WndMain::ShowStatusTime(const RR::DateTime& dt)
{
    const auto show = [](QLabel* label, const QString& text) {
        if (label->text() != text) {
            label->setText(text);
        }
    };
    show(ui->statusDay, PrintDayName(dt.CalcWeekDay()));
    show(ui->statusTime, PrintTime(dt.GetTime(), false));
}
