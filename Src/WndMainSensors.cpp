#include "WndMain.h"

#include "Config.h"
#include "Dialogs/DlgInnerPressWarning.h"
#include "Dialogs/DlgStatement.h"
#include "Globals.h"
#include "PrintIt.h"
#include "Settings.h"
#include "TavorDev.h"
#include "ui_WndMain.h"

#include <QGridLayout>
#include <algorithm>

// The live picture on the first tab, the two alarms that go with it, and the actuators under the finger.

using Jobs = JobStateMachine;

namespace {

/// The sensors that have a field, by its slot.
constexpr TavorDev::Sensor sensorMap[] = {TavorDev::SENSOR_SF6, TavorDev::SENSOR_SO2, TavorDev::SENSOR_HUM,
                                          TavorDev::SENSOR_HF, TavorDev::SENSOR_CO, TavorDev::SENSOR_H2S};

/// By the number of fields shown; font sizes and the panel's height in pixels.
constexpr struct {
    int chartFont;
    int sensorFont;
    int panelHeight;
} fieldSizes[] = {{16, 35, 110}, {24, 35, 110}, {24, 35, 170}, {22, 31, 230}, {16, 31, 125}, {16, 27, 140}, {16, 21, 175}};

/// From so many fields on a name in the chart stands left of its value, else above it.
constexpr int namesLeftFrom = 4;

const QString nameStyleSheet = QStringLiteral(
    "font-size: %1;background: transparent;border-width: 0px;border-radius: 0px;max-width: %2ex;");
const QString valueStyleSheet = QStringLiteral(
    "QLabel{   font-size: %1;border-width: %2;border-radius: %3;border-style: solid;min-height: 1em;min-width: 13ex;}"
    "QLabel:enabled{   background:%4;border-color: black;}"
    "QLabel:disabled{   background: rgba(230, 230, 230, 20);border-color: rgb(128, 128, 128);color: rgb(128, 128, 128);}");

QString Pixels(int size)
{
    return QStringLiteral("%1px").arg(size);
}

void SetBackGroundColor(QLabel* label, QColor bkColor)
{
    QPalette palette = label->palette();
    palette.setBrush(label->backgroundRole(), QBrush(bkColor));
    label->setPalette(palette);
}

/// What a pressure field shows: the present reading, or the one that ended the last job.
void ShowPressure(QLabel* label, TavorDev::PressureSensor sensor, const Jobs::Snapshot& snapshot,
                  std::initializer_list<Jobs::StopCause> alerts)
{
    static const QColor psBgAlert(255, 230, 0);
    static const QColor psBgNormal(230, 230, 230);
    const bool alert = std::find(alerts.begin(), alerts.end(), snapshot.stopCause) != alerts.end();
    label->setText(PrintPressure(alert ? snapshot.pressure[sensor] : tavorDev.GetPressure(sensor)));
    SetBackGroundColor(label, alert ? psBgAlert : psBgNormal);
}

/// 0 is off or closed, 1 is on or open; with any other state the button can't be used.
void ShowActuator(QToolButton* button, RR::SInt32 state)
{
    const bool known = state == 0 || state == 1;
    button->setEnabled(known);
    if (known) {
        button->setChecked(state == 1);
    }
}

/// The value that a field shows, of the unit or of a record.
QString PrintValue(int slot, RR::FixPnt1 amountSF6, RR::FixPnt3 amount, const Humidity& humidity)
{
    switch (sensorMap[slot]) {
    case TavorDev::SENSOR_SF6:
        return PrintAmountSF6(amountSF6, true);
    case TavorDev::SENSOR_SO2:
        return PrintAmountSO2(amount, true);
    case TavorDev::SENSOR_HUM:
        return PrintHumidity(humidity, true);
    case TavorDev::SENSOR_HF:
        return PrintAmountHF(amount, true);
    case TavorDev::SENSOR_CO:
        return PrintAmountCO(amount, true);
    default:
        return PrintAmountH2S(amount, true);
    }
}

QString LiveValue(int slot)
{
    switch (sensorMap[slot]) {
    case TavorDev::SENSOR_SF6:
        return PrintValue(slot, tavorDev.GetAmountSF6(), {}, {});
    case TavorDev::SENSOR_SO2:
        return PrintValue(slot, {}, tavorDev.GetAmountSO2(), {});
    case TavorDev::SENSOR_HUM:
        return PrintValue(slot, {}, {}, tavorDev.GetHumidity());
    case TavorDev::SENSOR_HF:
        return PrintValue(slot, {}, tavorDev.GetAmountHF(), {});
    case TavorDev::SENSOR_CO:
        return PrintValue(slot, {}, tavorDev.GetAmountCO(), {});
    default:
        return PrintValue(slot, {}, tavorDev.GetAmountH2S(), {});
    }
}

QString RecordedValue(int slot, const Mea& mea)
{
    const RR::FixPnt3 amounts[] = {{}, mea.amountSO2, {}, mea.amountHF, mea.amountCO, mea.amountH2S};
    return PrintValue(slot, mea.amountSF6, amounts[slot], mea.humidity);
}

QString NoValue(int slot)
{
    switch (sensorMap[slot]) {
    case TavorDev::SENSOR_SF6:
        return QStringLiteral("\u2015 Vol.-%");
    case TavorDev::SENSOR_HUM:
        return QStringLiteral("\u2015 ") + PrintHumidityUnit(settings.unitHumidity, true);
    default:
        return QStringLiteral("\u2015 ppm<sub>v</sub>");
    }
}

/// Values are live from a share of the measurement on; what the preparation jobs lead past the sensors is no result.
bool ShowsLiveValues()
{
    const Jobs::Type type = jobSTM.GetType();
    return inspectionMode
        || (jobSTM.IsRunning() && jobSTM.GetProgress() > settings.showSensorValuesAfter && type != Jobs::TYPE_H && type != Jobs::TYPE_J);
}

QString CalibrationGas()
{
    switch (tavorDev.GetSensorProfile(TavorDev::SENSOR_SF6).tag) {
    case 0:
        return QStringLiteral("<sup> [N2]</sup>");
    case 1:
        return QStringLiteral("<sup> [CF4]</sup>");
    default:
        return QStringLiteral("<sup> [?]<sup>");
    }
}

QLabel* MakeName(QWidget* parent, const QString& name, int font, int maxWidth, Qt::Alignment alignment)
{
    QLabel* label = new QLabel(name, parent);
    label->setStyleSheet(nameStyleSheet.arg(Pixels(font)).arg(maxWidth));
    label->setAlignment(alignment);
    label->setTextFormat(Qt::RichText);
    return label;
}

QLabel* MakeValue(QWidget* parent, int font, const char* border, const char* radius)
{
    QLabel* label = new QLabel(parent);
    label->setStyleSheet(valueStyleSheet.arg(Pixels(font), QLatin1String(border), QLatin1String(radius), QStringLiteral("rgb(230, 230, 230)")));
    label->setAlignment(Qt::AlignCenter);
    return label;
}

QGridLayout* RenewGrid(QWidget* panel)
{
    delete panel->layout();
    return new QGridLayout(panel);
}

bool HasPressureSensor()
{
    return tavorDev.GetSensorProfile(TavorDev::SENSOR_P6).type == TavorDev::SENSOR_P6;
}

}

void WndMain::UpdateSensors()
{
    // Stays set once the window closes, so that nothing interferes with the stop.
    static bool blockEvent = false;
    if (blockEvent) {
        return;
    }
    const Temperature reading = tavorDev.GetBoardTemperature();
    const QString temperature = PrintTemperature(reading);
    if (ui->statusTemp->text() != temperature) {
        ui->statusTemp->setText(temperature);
    }
    blockEvent = true;
    blockEvent = ShutsOffTooHot(reading) || ShutsDownUnbalanced();
    if (blockEvent || ui->mainTabWidget->currentIndex() != 0) {
        return;
    }
    const bool chart = ui->deviceView->currentIndex() == 0;
    if (chart) {
        UpdateChart();
    } else if (HasPressureSensor()) {
        ui->compPressure2->setText(PrintPressureComp(tavorDev.GetPressureComp(), tavorDev.GetSensorProfile(TavorDev::SENSOR_P6)));
    }
    UpdateSensorValues(chart ? chartViewOutputValue : sensorViewOutputValue);
}

bool WndMain::ShutsOffTooHot(const Temperature& reading)
{
    // Service staff may go on up to 15 degrees Celsius above the limit.
    constexpr RR::SInt32 inspectionTolerance = 15;
    const Temperature::Unit unit = settings.unitTemperature;
    if (reading[unit] == RR::INVALID) {
        return false;
    }
    const bool tempAlert = inspectionMode
        ? reading[Temperature::CELS] > CFG::InsideTempLimit[Temperature::CELS] + inspectionTolerance
        : reading[unit] > CFG::InsideTempLimit[unit];
    if (tempAlert) {
        setUpdatesEnabled(false);
        DsplHalfbright();
        DlgStatement::Show(tr("Gehäuseinnentemperatur übersteigt die zulässige Grenze von %1!<p><i>Gerät wird abgeschaltet.</i>")
                               .arg(PrintTemperature(CFG::InsideTempLimit)), DlgStatement::CLOSE_10, true);
        setUpdatesEnabled(true);
        RR::Log("[ZARN] Temperature alert, device shut off\n");
        jobSTM.Stop();
        close();
    }
    return tempAlert;
}

bool WndMain::ShutsDownUnbalanced()
{
    // A window that has been closed only waits for the end of the event loop.
    if (jobSTM.IsRunning() || evacuationMode || inspectionMode || !isVisible()) {
        return false;
    }
    if (!DlgInnerPressWarning::InnerPressureBalanced()) {
        // The start has its own warning, which this may run under: then the window tells it once, and no second one opens.
        if (!innerPressureWarned || ui->statusInoperableSymb->isHidden()) {
            ui->statusInoperableSymb->show();
            ShowStatusBarMsg(tr("Gerät nicht betriebsbereit"), 30);
            ui->startMea->setEnabled(false);
            ui->emptyDepot->setEnabled(false);
            RR::Log("[ZARN] System not operational. Inner pressure out of limit.\n");
        }
        if (innerPressureWarned) {
            return false;
        }
        if (!WarnOfInnerPressure()) {
            return true;
        }
    }
    if (!ui->statusInoperableSymb->isHidden()) {
        ui->statusInoperableSymb->hide();
        ShowStatusBarMsg(tr("Gerät wieder betriebsbereit"), 10);
        RR::Log("[ZARN] System ready for operation again. Inner pressure normalised.\n");
    }
    ui->startMea->setEnabled(true);
    ui->emptyDepot->setEnabled(true);
    return false;
}

bool WndMain::WarnOfInnerPressure()
{
    innerPressureWarned = true;
    const bool balanced = DlgInnerPressWarning::Show();
    innerPressureWarned = false;
    if (!balanced) {
        tavorDev.HomePositions();
        close();
    }
    return balanced;
}

void WndMain::UpdateChart()
{
    ui->compPressure1->setText(PrintPressureComp(tavorDev.GetPressureComp(), tavorDev.GetSensorProfile(TavorDev::SENSOR_P6)));
    ShowPressure(ui->inletPressure, TavorDev::PRESSENS_INLET, jobSnapshot,
                 {Jobs::INLET_UNDERPRESSURE, Jobs::INLET_OVERPRESSURE, Jobs::INLET_NO_PUMPBACK});
    ShowPressure(ui->backPressure, TavorDev::PRESSENS_BACK, jobSnapshot, {Jobs::BACK_UNDERPRESSURE, Jobs::BACK_OVERPRESSURE});
    ShowPressure(ui->operPressure, TavorDev::PRESSENS_OPERATION, jobSnapshot, {Jobs::OPER_UNDERPRESSURE, Jobs::OPER_OVERPRESSURE});
    ShowPressure(ui->depotPressure, TavorDev::PRESSENS_DEPOT, jobSnapshot, {Jobs::DEPOT_UNDERPRESSURE, Jobs::DEPOT_OVERPRESSURE});
    ui->pressureP5->setText(PrintPressure(tavorDev.GetPressure(TavorDev::PRESSENS_P5)));

    QToolButton* const valves[TavorDev::VALVE_NUM] = {ui->mainValve, ui->inletValve, ui->outletValve,
                                                      ui->depotValve, ui->prOutletValve, ui->freerunValve};
    for (int i = 0; i < TavorDev::VALVE_NUM; ++i) {
        ShowActuator(valves[i], tavorDev.GetValve(static_cast<TavorDev::Valve>(i)));
    }
    ShowActuator(ui->fanValve, tavorDev.GetFan1());
    ShowActuator(ui->compressor, tavorDev.GetCompressor());

    const RR::SInt32 level = tavorDev.GetDepotFillingLevel();
    ui->depotFillingLevel->setTextVisible(level == RR::INVALID);
    if (level != RR::INVALID) {
        ui->depotFillingLevel->setValue(level);
    }
}

void WndMain::UpdateSensorValues(QLabel* const* labels)
{
    const bool showSensorValue = ShowsLiveValues();
    const Mea& mea = jobSTM.GetMea();
    for (int slot = 0; slot < fieldNum; ++slot) {
        if (labels[slot]) {
            labels[slot]->setText(showSensorValue ? LiveValue(slot) : mea.IsEmpty() ? NoValue(slot) : RecordedValue(slot, mea));
        }
    }
}

void WndMain::PlaceSensorOutputFields()
{
    for (auto* labels : {&chartViewOutputName, &chartViewOutputValue, &sensorViewOutputName, &sensorViewOutputValue}) {
        for (QLabel*& label : *labels) {
            delete label;
            label = nullptr;
        }
    }
    QGridLayout* chartGrid = RenewGrid(ui->chartViewOutputPanel);
    QGridLayout* sensorGrid = RenewGrid(ui->sensorView);
    int shown = static_cast<int>(std::count_if(std::begin(sensorMap), std::end(sensorMap),
                                               [](TavorDev::Sensor sensor) { return tavorDev.HasSensor(sensor); }));
    if (shown == 0) {
        PlaceNoSensors(chartGrid, sensorGrid);
    } else {
        const QString names[fieldNum] = {QStringLiteral("SF<sub>6</sub>") + CalibrationGas(), QStringLiteral("SO<sub>2</sub>"), tr("Feuchte"),
                                         QStringLiteral("HF"), QStringLiteral("CO"), QStringLiteral("H<sub>2</sub>S")};
        PlaceSensorView(sensorGrid, names, shown);
        shown = settings.showAvailSensOnly ? shown : fieldNum;
        PlaceChartView(chartGrid, names, shown);
    }
    ui->compPressWidget->setVisible(HasPressureSensor());
    const int height = fieldSizes[shown].panelHeight;
    const QRect place(210, (210 - height) / 2 + 40, 220, height);
    ui->chartViewOutputPanel->setGeometry(place);
    ui->toggleSensors->setGeometry(place);
    ui->toggleSensors->setEnabled(tavorDev.HasSensors());
}

void WndMain::PlaceNoSensors(QGridLayout* chartGrid, QGridLayout* sensorGrid)
{
    const auto place = [](QGridLayout* grid, int font) {
        QLabel* label = new QLabel(tr("Keine Sensoren"), grid->parentWidget());
        label->setStyleSheet(QStringLiteral("font-size: %1;").arg(Pixels(font)));
        label->setAlignment(Qt::AlignCenter);
        grid->addWidget(label, 0, 0);
        return label;
    };
    chartViewOutputName[0] = place(chartGrid, fieldSizes[0].chartFont);
    sensorViewOutputName[0] = place(sensorGrid, fieldSizes[0].sensorFont);
}

void WndMain::PlaceSensorView(QGridLayout* grid, const QString* names, int count)
{
    const int font = fieldSizes[count].sensorFont;
    grid->setColumnStretch(0, 1);
    grid->setColumnStretch(3, 1);
    grid->setRowStretch(0, 1);
    int row = 1;
    for (int slot = 0; slot < fieldNum; ++slot) {
        if (tavorDev.HasSensor(sensorMap[slot])) {
            sensorViewOutputName[slot] = MakeName(ui->sensorView, names[slot], font, 12, Qt::AlignRight | Qt::AlignVCenter);
            sensorViewOutputValue[slot] = MakeValue(ui->sensorView, font, "3px", "5px");
            grid->addWidget(sensorViewOutputName[slot], row, 1);
            grid->addWidget(sensorViewOutputValue[slot], row, 2);
            ++row;
        }
    }
    grid->setRowStretch(row + 1, 1);
}

void WndMain::PlaceChartView(QGridLayout* grid, const QString* names, int count)
{
    const int font = fieldSizes[count].chartFont;
    const bool namesLeft = count >= namesLeftFrom;
    grid->setColumnStretch(1, 1);
    grid->setRowStretch(0, 1);
    int row = 1;
    for (int slot = 0; slot < fieldNum; ++slot) {
        const bool fitted = tavorDev.HasSensor(sensorMap[slot]);
        if (settings.showAvailSensOnly && !fitted) {
            continue;
        }
        QLabel* name = MakeName(ui->chartViewOutputPanel, names[slot], font, namesLeft ? 8 : 12,
                                (namesLeft ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
        QLabel* value = MakeValue(ui->chartViewOutputPanel, font, "1px", "0px");
        name->setEnabled(fitted);
        value->setEnabled(fitted);
        if (namesLeft) {
            grid->addWidget(name, row, 0);
        } else {
            grid->addWidget(name, row++, 1);
        }
        grid->addWidget(value, row++, 1);
        chartViewOutputName[slot] = name;
        chartViewOutputValue[slot] = value;
    }
    grid->setRowStretch(row + 1, 1);
}

void WndMain::OnToggleView()
{
    settings.flowChartView = sender() == ui->switchToChartView;
    ui->deviceView->setCurrentIndex(settings.flowChartView ? 0 : 1);
    StatusMsg(settings.flowChartView ? tr("Anzeige Flussplan") : tr("Anzeige Sensorwerte"));
}

void WndMain::OnToggleSensors()
{
    settings.showAvailSensOnly = !settings.showAvailSensOnly;
    StatusMsg(settings.showAvailSensOnly ? tr("Nur bestückte Sensoren anzeigen") : tr("Alle unterstützten Sensoren anzeigen"));
    PlaceSensorOutputFields();
}

void WndMain::OnValve(bool)
{
    const struct {
        QToolButton* button;
        TavorDev::Valve valve;
        QString name;
    } valves[] = {
        {ui->mainValve, TavorDev::VALVE_MAIN, tr("Hauptventil")},
        {ui->inletValve, TavorDev::VALVE_INLET, tr("Einlassventil")},
        {ui->outletValve, TavorDev::VALVE_OUTLET, tr("Auslassventil")},
        {ui->depotValve, TavorDev::VALVE_DEPOT, tr("Depot Ventil")},
        {ui->prOutletValve, TavorDev::VALVE_PR_OUTLET, tr("Druckausgangsventil")},
        {ui->freerunValve, TavorDev::VALVE_FREERUN, tr("Freilauf Ventil")},
    };
    for (const auto& [button, valve, name] : valves) {
        if (sender() != button) {
            continue;
        }
        if (inspectionMode) {
            tavorDev.SetValve(valve, button->isChecked());
        } else {
            button->setChecked(tavorDev.GetValve(valve) != TavorDev::VALVE_CLOSE);
        }
        StatusMsg(name + (button->isChecked() ? tr(" geöffnet") : tr(" geschlossen")));
    }
}

void WndMain::OnFan1(bool checked)
{
    if (inspectionMode) {
        tavorDev.SetFan1(checked);
    } else {
        ui->fanValve->setChecked(tavorDev.GetFan1() != TavorDev::FAN_OFF);
    }
}

void WndMain::OnCompressor(bool checked)
{
    if (inspectionMode) {
        tavorDev.SetCompressor(checked);
    } else {
        ui->compressor->setChecked(tavorDev.GetCompressor() != TavorDev::COMPRESSOR_OFF);
    }
    StatusMsg(ui->compressor->isChecked() ? tr("Kompressor ein") : tr("Kompressor aus"));
}
