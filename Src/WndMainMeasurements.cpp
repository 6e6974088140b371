#include "WndMain.h"

#include "Settings.h"
#include "TavorDev.h"
#include "ui_WndMain.h"

// The tab of the stored measurements, and what the settings tab shows of them.

namespace {

void MarkVerdict(QTableWidgetItem& cell, Mea::Result result)
{
    if (result == Mea::PASSED) {
        cell.setBackground(QColor(80, 255, 80));
    } else if (result == Mea::FAILED) {
        cell.setBackground(QColor(255, 110, 110));
    }
}

void MarkHeading(QTableWidgetItem& cell)
{
    QFont font = cell.font();
    font.setWeight(QFont::Bold);
    cell.setFont(font);
    cell.setForeground(Qt::white);
    cell.setBackground(QColor(0, 0, 0, 10));
}

}

void WndMain::UpdateMeaTab()
{
    meaTable.Update();
    ui->meaCapacity->setValue(meaTable.GetSize());
    ui->meaNum->setText(QString::number(meaTable.GetSize()));
}

void WndMain::OnMeaTable(const QModelIndex& index)
{
    ShowMeaPreview(meaTable[index.row()]);
}

/// Null clears it.
void WndMain::ShowMeaPreview(const MeaHeader* header)
{
    if (!header) {
        ui->meaPreview->clear();
        return;
    }
    Mea mea;
    mea.Load(header->GetFileName());
    RR::List<Mea::Item> items;
    mea.Export(items, true);
    ui->meaPreview->setRowCount(items.GetCount());
    int row = 0;
    for (auto item = items.First(); !item.IsNil(); item.Next(), ++row) {
        const QString texts[] = {item.Entry().name, item.Entry().value};
        for (int column = 0; column < 2; ++column) {
            QTableWidgetItem* cell = new QTableWidgetItem(texts[column]);
            if (item.Entry().type == '*') {
                MarkVerdict(*cell, mea.result);
            } else if (item.Entry().type == '-') {
                MarkHeading(*cell);
            }
            ui->meaPreview->setItem(row, column, cell);
        }
    }
}

void WndMain::OnEquipControls()
{
    ui->setPressUnit->setCurrentIndex(settings.unitPressure);
    ui->setHumidityUnit->setCurrentIndex(settings.unitHumidity);
    ui->setTempUnit->setCurrentIndex(settings.unitTemperature);
    ui->meaCapacity->setMaximum(meaCapacityMax);
    ui->setDelOldestMea->setText(tr("Bei mehr als %1\nMessungen:\nÄlteste löschen").arg(meaCapacityMax));
    ui->setDelOldestMea->setChecked(settings.delOldestMea);
    ShowStatusTime(RR::DateTime::Now());
    OnMeaTable(ui->meaTable->currentIndex());
    equipCompleted = true;
}
