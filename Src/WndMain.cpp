#include "WndMain.h"

#include "Dialogs/DlgStatement.h"
#include "Dialogs/Look.h"
#include "Globals.h"
#include "InspectionMode.h"
#include "PrintIt.h"
#include "Settings.h"
#include "TavorDev.h"
#include "ui_WndMain.h"

#include <QEvent>
#include <QMouseEvent>
#include <algorithm>

WndMain* wndMain = nullptr;

QObject* WndMainObject()
{
    return wndMain;
}

void StatusMsg(const QString& msg)
{
    if (wndMain) {
        wndMain->ShowStatusBarMsg(msg, 5);
    }
}

WndMain::WndMain(QWidget* parent, Qt::WindowFlags flags)
    : QMainWindow(parent, flags), ui(std::make_unique<Ui_WndMain>()), meaTable(nullptr)
{
    ui->setupUi(this);
    // A style sheet in force while the form is built would be applied anew on each level of its nested pages.
    DressApplication();
    ConnectTavorDev();
    ConnectJobSTM();
    ConnectControls();
    LockUnservedControls();
    ui->jobStackedWidget->setCurrentIndex(0);
    ui->statusInoperableSymb->hide();
    ui->meaRemainingTime->hide();
    ui->compPressWidget->hide();
    ui->statusMsgStack->setCurrentIndex(0);
    ui->meaTable->setModel(&meaTable);
    ui->meaTable->viewport()->installEventFilter(this);
    ui->meaNum->setText(QString::number(meaTable.GetSize()));
    SetupPressureBoxes();
    ShowFirstPages();
    FillUnitSelectors();
    CheckMemoryCard();
    CheckForInspectionMode();
    ApplyInspectionMode();
    statusMessageTimer.setSingleShot(true);
    connect(&statusMessageTimer, &QTimer::timeout, this, &WndMain::OnStatusMessageTimeout);
    // The window is to be on the screen before anything talks to the sensor unit.
    QTimer::singleShot(1000, this, &WndMain::On2ndStage);
    secTimer.start(1000);
    sensSupervisionTimer.start(7000);
}

WndMain::~WndMain() = default;

void WndMain::ConnectTavorDev()
{
    // Queued: some come from the link thread, and the others are to arrive after `Connect` has returned.
    connect(&tavorDev, &TavorDev::Connected, this, &WndMain::OnTavorDevConnected, Qt::QueuedConnection);
    connect(&tavorDev, &TavorDev::Disconnected, this, &WndMain::OnTavorDevDisconnected, Qt::QueuedConnection);
    connect(&tavorDev, &TavorDev::Lost, this, &WndMain::OnTavorDevLost, Qt::QueuedConnection);
    connect(&tavorDev, &TavorDev::Recovered, this, &WndMain::OnTavorDevRecovered, Qt::QueuedConnection);
    connect(&tavorDev, &TavorDev::Changed, this, &WndMain::OnTavorDevChanged, Qt::QueuedConnection);
}

void WndMain::ConnectJobSTM()
{
    // Queued: only after the job has fully ended may a slot start the next one.
    connect(&jobSTM, &JobStateMachine::Started, this, &WndMain::OnJobSTMStarted, Qt::QueuedConnection);
    connect(&jobSTM, &JobStateMachine::Stopped, this, &WndMain::OnJobSTMStopped, Qt::QueuedConnection);
    connect(&jobSTM, &JobStateMachine::Progress, ui->jobProgressBar, &QProgressBar::setValue, Qt::QueuedConnection);
}

void WndMain::ConnectControls()
{
    // Queued: a timeout that falls due while a handler runs waits for the event loop.
    connect(&secTimer, &QTimer::timeout, this, &WndMain::OnSecTimeout, Qt::QueuedConnection);
    connect(&sensSupervisionTimer, &QTimer::timeout, this, &WndMain::OnSensSupervisionTimeout, Qt::QueuedConnection);
    connect(ui->shutdown, &QPushButton::clicked, this, &WndMain::OnShutdown);
    for (QToolButton* valve : {ui->mainValve, ui->inletValve, ui->prOutletValve, ui->outletValve, ui->depotValve, ui->freerunValve}) {
        connect(valve, &QToolButton::clicked, this, &WndMain::OnValve);
    }
    connect(ui->fanValve, &QToolButton::clicked, this, &WndMain::OnFan1);
    connect(ui->compressor, &QToolButton::clicked, this, &WndMain::OnCompressor);
    connect(ui->toggleSensors, &QPushButton::clicked, this, &WndMain::OnToggleSensors);
    connect(ui->switchToSensorView, &QToolButton::clicked, this, &WndMain::OnToggleView);
    connect(ui->switchToChartView, &QToolButton::clicked, this, &WndMain::OnToggleView);
    connect(ui->startMea, &QPushButton::clicked, this, &WndMain::OnStartMea);
    connect(ui->startInspJob, &QPushButton::clicked, this, &WndMain::OnStartInspJob);
    connect(ui->emptyDepot, &QPushButton::clicked, this, &WndMain::OnEmptyDepot);
    connect(ui->stopJob, &QPushButton::clicked, this, &WndMain::OnStopJob);
    connect(ui->sysEvacuation, &QPushButton::clicked, this, &WndMain::OnSysEvacuation);
}

/// Controls that nothing listens to are not to look as if they worked.
void WndMain::LockUnservedControls()
{
    ui->settTab0->setEnabled(false);
    ui->settTab2->setEnabled(false);
    for (QWidget* control : {ui->setShowSystemInfo, ui->setShowSensorInfo, ui->setSystemSelftest, ui->setDateTime, ui->setLanguage,
                             ui->setFactoryDefaults}) {
        control->setEnabled(false);
    }
    ui->setInspectionMode->setEnabled(false);
}

/// These values change by the arrows only, so no finger may bring up a cursor there.
void WndMain::SetupPressureBoxes()
{
    for (QFixP3SpinBox* box : {ui->setLimitMaxInletPress, ui->setLimitMinInletPress, ui->setLimitMaxBkPress}) {
        QLineEdit* line = box->findChild<QLineEdit*>();
        line->installEventFilter(this);
        line->setReadOnly(true);
        line->setFocusPolicy(Qt::NoFocus);
    }
}

void WndMain::ShowFirstPages()
{
    ui->mainTabWidget->setCurrentIndex(0);
    ui->statusInfo->setCurrentIndex(0);
    ui->deviceView->setCurrentIndex(settings.flowChartView ? 0 : 1);
    (settings.flowChartView ? ui->switchToChartView : ui->switchToSensorView)->setChecked(true);
}

void WndMain::FillUnitSelectors()
{
    for (const auto unit : {Pressure::BAR, Pressure::KPA, Pressure::PSI, Pressure::MPA}) {
        ui->setPressUnit->addItem(PrintPressureUnit(unit), unit);
    }
    for (const auto unit : {Temperature::CELS, Temperature::FAHR}) {
        ui->setTempUnit->addItem(PrintTemperatureUnit(unit), unit);
    }
    for (const auto unit : {Humidity::CELS, Humidity::FAHR, Humidity::PPMV, Humidity::PPMW, Humidity::CELSPR, Humidity::FAHRPR}) {
        ui->setHumidityUnit->addItem(PrintHumidityUnit(unit, false), unit);
    }
}

void WndMain::CheckMemoryCard()
{
    if (!MMCAvailable()) {
        RR::Log("[ZARN] Internal memory card missing or failure\n");
        DlgStatement::Show(tr("Interne Speicherkarte fehlt oder ist fehlerhaft"), DlgStatement::CLOSE_40, true);
    } else if (!MMCReadWritable()) {
        RR::Log("[ZARN] Internal memory card is read-only\n");
        DlgStatement::Show(tr("Interne Speicherkarte: Zugriffsfehler<p><i>(System bitte neu starten)</i>"), DlgStatement::CLOSE_40, true);
    }
}

void WndMain::ApplyInspectionMode()
{
    if (ui->chartFrame->styleSheet().isEmpty()) {
        // Without a sheet of its own yet, it would be stripped of the new one before that is put on: the picture would be read twice.
        ui->chartFrame->setAttribute(Qt::WA_StyleSheet, false);
    }
    ui->chartFrame->setStyleSheet(inspectionMode
            ? QStringLiteral("QFrame#chartFrame{image: url(:/TImg/Images/Device_Chart_B.png);}")
            : QStringLiteral("QFrame#chartFrame{image: url(:/TImg/Images/Device_Chart_A.png);}"));
    ui->setInspectionMode->setChecked(inspectionMode);
    const std::initializer_list<QWidget*> serviceOnly = {ui->statusInspModeSymb, ui->operPressure, ui->depotPressure, ui->backPressure,
        ui->pressureP5, ui->fanValve, ui->labelLimitMaxBkPress, ui->setLimitMaxBkPress, ui->startInspJob};
    for (QWidget* widget : serviceOnly) {
        widget->setVisible(inspectionMode);
    }
}

void WndMain::EquipControls()
{
    equipCompleted = false;
    QTimer::singleShot(100, this, &WndMain::OnEquipControls);
}

bool WndMain::eventFilter(QObject* object, QEvent* event)
{
    if (object == ui->meaTable->viewport() && event->type() == QEvent::MouseButtonRelease) {
        OnMeaTable(ui->meaTable->currentIndex());
    }
    return QMainWindow::eventFilter(object, event);
}

void WndMain::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange) {
        const auto widest = [metrics = fontMetrics()](std::initializer_list<QString> texts) {
            int width = 0;
            for (const QString& text : texts) {
                width = std::max(width, metrics.horizontalAdvance(text));
            }
            return width;
        };
        ui->statusTime->setMinimumWidth(widest({PrintTime(RR::Time(23, 0, 0), false), PrintTime(RR::Time(12, 0, 0), false)}));
        QHeaderView* header = ui->meaTable->horizontalHeader();
        header->resizeSection(0, widest({MeaTable::tr("Datum"), MeaTable::tr("heute"), PrintDate(RR::Date(24, 12, 2000))}));
        header->setSectionResizeMode(1, QHeaderView::Stretch);
        header->resizeSection(2, 40);
        EquipControls();
        ui->retranslateUi(this);
    }
    QMainWindow::changeEvent(event);
}
