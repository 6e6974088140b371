#include "Dialogs/DlgMeaResult.h"

#include "Dialogs/DlgShared.h"
#include "Mea.h"
#include "PrintIt.h"
#include "ui_DlgMeaResult.h"

static const char* const passedImg = ":/TImg/Images/Mea_Passed_A.png";
static const char* const failedImg = ":/TImg/Images/Mea_Failed_A.png";
static const char* const neutralImg = ":/TImg/Images/Mea_Neutral_A.png";

static void SetReport(Mea::Report report, QLabel& text, QLabel& icon)
{
    switch (report) {
    case Mea::ABOVE_MAX:
        text.setText(QObject::tr("> Max."));
        icon.setPixmap(QPixmap(failedImg));
        break;
    case Mea::NORMAL:
        text.setText(QObject::tr("Normal"));
        icon.setPixmap(QPixmap(passedImg));
        break;
    case Mea::BELOW_MIN:
        text.setText(QObject::tr("< Min."));
        icon.setPixmap(QPixmap(failedImg));
        break;
    default:
        text.setText(QObject::tr("n.v."));
        icon.setPixmap(QPixmap(neutralImg));
        break;
    }
}

DlgMeaResult::DlgMeaResult(const Mea& mea)
    : QDialog(DlgShared::Parent(), Qt::FramelessWindowHint), ui(new Ui_DlgMeaResult)
{
    ui->setupUi(this);
    for (QWidget* widget : {ui->labelHF, ui->reportHFValue, ui->reportHFIcon, ui->reportHFText}) {
        widget->setVisible(tavorDev.HasSensor(TavorDev::SENSOR_HF));
    }
    DlgShared::Center(*this);
    connect(ui->buttonClose, &QPushButton::clicked, this, &DlgMeaResult::close);

    ui->reportSF6Value->setText(PrintAmountSF6(mea.amountSF6, true));
    ui->reportSO2Value->setText(PrintAmountSO2(mea.amountSO2, true));
    ui->reportHumValue->setText(PrintHumidity(mea.humidity, true));
    ui->reportHFValue->setText(PrintAmountHF(mea.amountHF, true));
    SetReport(mea.reportSF6, *ui->reportSF6Text, *ui->reportSF6Icon);
    SetReport(mea.reportSO2, *ui->reportSO2Text, *ui->reportSO2Icon);
    SetReport(mea.reportHum, *ui->reportHumText, *ui->reportHumIcon);
    SetReport(mea.reportHF, *ui->reportHFText, *ui->reportHFIcon);
    switch (mea.result) {
    case Mea::PASSED:
        ui->resultText->setText(tr("Bestanden"));
        ui->resultIcon->setPixmap(QPixmap(passedImg));
        break;
    case Mea::FAILED:
        ui->resultText->setText(tr("Nicht Bestanden"));
        ui->resultIcon->setPixmap(QPixmap(failedImg));
        break;
    default:
        ui->resultText->setText(tr("n.v."));
        break;
    }
}

DlgMeaResult::~DlgMeaResult() = default;

void DlgMeaResult::Show(const Mea& mea)
{
    DlgMeaResult dialog(mea);
    dialog.exec();
}
