#include "WndMain.h"

#include "Globals.h"
#include "PrintIt.h"
#include "TavorDev.h"
#include "ui_WndMain.h"

#include <QEvent>
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
    : QMainWindow(parent, flags), ui(std::make_unique<Ui::WndMain>())
{
    ui->setupUi(this);
    ConnectSignals();
    ui->jobStackedWidget->setCurrentIndex(0);
    ui->statusInoperableSymb->hide();
    CheckMemoryCard();
    statusMessageTimer.setSingleShot(true);
    connect(&statusMessageTimer, &QTimer::timeout, ui->statusMessageText, &QLabel::clear);
    // The window is to be on the screen before anything talks to the sensor unit.
    QTimer::singleShot(1000, this, &WndMain::On2ndStage);
}

WndMain::~WndMain() = default;

void WndMain::ConnectSignals()
{
    // Queued: some come from the link thread, and the others are to arrive after their sender has finished.
    connect(&tavorDev, &TavorDev::Connected, this, &WndMain::OnTavorDevConnected, Qt::QueuedConnection);
    connect(&tavorDev, &TavorDev::Disconnected, this, &WndMain::OnTavorDevDisconnected, Qt::QueuedConnection);
    connect(&tavorDev, &TavorDev::Lost, this, &WndMain::OnTavorDevLost, Qt::QueuedConnection);
    connect(&tavorDev, &TavorDev::Recovered, this, &WndMain::OnTavorDevRecovered, Qt::QueuedConnection);
    connect(&tavorDev, &TavorDev::Changed, this, &WndMain::OnTavorDevChanged, Qt::QueuedConnection);
    connect(&jobSTM, &JobStateMachine::Started, this, &WndMain::OnJobSTMStarted, Qt::QueuedConnection);
    connect(&jobSTM, &JobStateMachine::Stopped, this, &WndMain::OnJobSTMStopped, Qt::QueuedConnection);
    connect(&jobSTM, &JobStateMachine::Progress, ui->jobProgressBar, &QProgressBar::setValue, Qt::QueuedConnection);
    connect(ui->shutdown, &QPushButton::clicked, this, &WndMain::OnShutdown);
    connect(ui->startMea, &QPushButton::clicked, this, &WndMain::OnStartMea);
    connect(ui->stopJob, &QPushButton::clicked, this, &WndMain::OnStopJob);
}

void WndMain::CheckMemoryCard()
{
    if (!MMCAvailable()) {
        RR::Log("[ZARN] Internal memory card missing or failure\n");
        ShowStatusBarMsg(tr("Interne Speicherkarte fehlt oder ist fehlerhaft"), 40);
    } else if (!MMCReadWritable()) {
        RR::Log("[ZARN] Internal memory card is read-only\n");
        ShowStatusBarMsg(tr("Interne Speicherkarte: Zugriffsfehler"), 40);
    }
}

void WndMain::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange) {
        ui->retranslateUi(this);
        UpdateSensors();
    }
    QMainWindow::changeEvent(event);
}

void WndMain::ShowStatusBarMsg(const QString& msg, RR::SInt32 time)
{
    ui->statusMessageText->setText(msg);
    if (time != RR::INVALID) {
        statusMessageTimer.start(std::clamp(time, 0, 3600) * 1000);
    }
}

void WndMain::UpdateSensors()
{
    ui->amountSF6->setText(PrintAmountSF6(tavorDev.GetAmountSF6(), true));
    ui->amountSO2->setText(PrintAmountSO2(tavorDev.GetAmountSO2(), true));
    ui->humidity->setText(PrintHumidity(tavorDev.GetHumidity(), true));
    ui->inletPressure->setText(PrintPressure(tavorDev.GetPressure(TavorDev::PRESSENS_INLET)));
    ui->depotFillingLevel->setText(PrintNum(tavorDev.GetDepotFillingLevel()) + " %");
    if (tavorDev.GetMode() == TavorDev::MODE_APPL && !jobSTM.IsRunning()) {
        ui->startMea->setEnabled(true);
    }
}
