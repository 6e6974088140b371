#include "Mea.h"

#include "PrintIt.h"

using namespace RR;

namespace {

const char16_t bullet[] = u"\u2022 ";
const char16_t arrow[] = u"\u2192";

/// `view` is 'X' for both lists, 'D' for the full list and 'P' for the preview only.
void Append(List<Mea::Item>& list, bool isPreView, char view, char type, const QString& name, const QString& value,
            bool enabled)
{
    if (enabled && view != (isPreView ? 'D' : 'P')) {
        list.Append({type, name, value});
    }
}

/// One record on its way into a list, section by section.
struct Sheet {
    const Mea& mea;
    List<Mea::Item>& list;
    const bool isPreView;
    const bool hasSF6 = mea.sensorSF6.type == TavorDev::SENSOR_SF6;
    const bool hasSO2 = mea.sensorSO2.type == TavorDev::SENSOR_SO2;
    const bool hasHum = mea.sensorHum.type == TavorDev::SENSOR_HUM;
    const bool hasHF = mea.sensorHF.type == TavorDev::SENSOR_HF;
    const bool hasCO = mea.sensorCO.type == TavorDev::SENSOR_CO;
    const bool hasH2S = mea.sensorH2S.type == TavorDev::SENSOR_H2S;
    const bool hasPressComp = mea.sensorPressComp.type == TavorDev::SENSOR_P6;

    void Heading(char view, const QString& title)
    {
        Append(list, isPreView, view, '-', title, QString(), true);
    }

    void Row(char view, const QString& label, const QString& value, bool enabled = true, char type = 'x')
    {
        Append(list, isPreView, view, type, QString::fromUtf16(bullet) + label, value, enabled);
    }

    /// SF6 with the balance gas that its sensor is calibrated for.
    QString LabelSF6() const
    {
        switch (mea.sensorSF6.tag) {
        case 0: return "SF6 [N2]";
        case 1: return "SF6 [CF4]";
        default: return "SF6 [?]";
        }
    }

    void AddGeneral();
    void AddVerdict();
    void AddReadings();
    void AddPressures();
    void AddLimits();
    void AddInstrument();
    void FillEmptySections();
};

void Sheet::AddGeneral()
{
    Heading('X', Mea::tr("Allgemein"));
    Row('X', Mea::tr("Name"), mea.name);
    Row('X', Mea::tr("Zeit"), PrintTime(mea.dateTime.GetTime(), true));
    Row('X', Mea::tr("Datum"), PrintDate(mea.dateTime.GetDate()));
    Row('D', Mea::tr("Temperatur"), PrintTemperature(mea.inTemperature));
    Row('D', Mea::tr("Luftfeuchte"), PrintNum(mea.relHumidity) + " %");
    Row('D', Mea::tr("Luftdruck"), PrintNum(mea.airPressure) + " hPa");
    Row('D', Mea::tr("Durchflussdauer"), PrintNum(mea.sensPassageTime) + " " + Mea::tr("s"));
}

void Sheet::AddVerdict()
{
    Heading('X', Mea::tr("Auswertung"));
    Row('X', LabelSF6(), PrintReport(mea.reportSF6), hasSF6);
    Row('X', "SO2", PrintReport(mea.reportSO2), hasSO2);
    Row('X', Mea::tr("Feuchte"), PrintReport(mea.reportHum), hasHum);
    Row('X', "HF", PrintReport(mea.reportHF), hasHF);
    Row('X', Mea::tr("Ergebnis") + " " + QString::fromUtf16(arrow), PrintResult(mea.result), true, '*');
}

void Sheet::AddReadings()
{
    Heading('P', Mea::tr("Sens.werte"));
    Heading('D', Mea::tr("Sensorwerte"));
    Row('X', LabelSF6(), PrintAmountSF6(mea.amountSF6, false), hasSF6);
    Row('X', "SO2", PrintAmountSO2(mea.amountSO2, false), hasSO2);
    Row('X', Mea::tr("Feuchte"), PrintHumidity(mea.humidity, false), hasHum);
    Row('X', "HF", PrintAmountHF(mea.amountHF, false), hasHF);
    Row('D', "CO", PrintAmountCO(mea.amountCO, false), hasCO);
    Row('D', "H2S", PrintAmountH2S(mea.amountH2S, false), hasH2S);
}

void Sheet::AddPressures()
{
    const QString absolute = " (Abs.)";
    Heading('X', Mea::tr("Druck"));
    Row('X', Mea::tr("Gasraum"), PrintPressureComp(mea.pressureComp, mea.sensorPressComp) + absolute, hasPressComp);
    Row('X', Mea::tr("Einlass"), PrintPressure(mea.pressureInlet) + absolute);
    Row('X', Mea::tr("Gegen"), PrintPressure(mea.pressureBack));
    Row('X', Mea::tr("Betrieb"), PrintPressure(mea.pressureOper) + absolute);
    Row('D', Mea::tr("Depot"), PrintPressure(mea.pressureDepot));
}

void Sheet::AddLimits()
{
    Heading('D', Mea::tr("Grenzen"));
    Row('D', Mea::tr("Min.") + " SF6", PrintAmountSF6(mea.limitMinSF6, false), hasSF6);
    Row('D', Mea::tr("Max.") + " SO2", PrintAmountSO2(mea.limitMaxSO2, false), hasSO2);
    Row('D', Mea::tr("Max. Feuchte"), PrintHumidity(mea.limitMaxHumidity, false), hasHum);
    Row('D', Mea::tr("Max.") + " HF", PrintAmountHF(mea.limitMaxHF, false), hasHF);
}

void Sheet::AddInstrument()
{
    const auto text = [](const char* latin1) { return QString::fromLatin1(latin1); };
    const auto withVersion = [](const QString& what, const char* version) { return what + "  (V" + version + ")"; };
    Heading('D', Mea::tr("Sonstige"));
    Row('D', Mea::tr("HMI-Anw."), withVersion(text(mea.applType), mea.applVers.ToStr()));
    Row('D', Mea::tr("HMI-Board"), text(mea.boardType));
    Row('D', Mea::tr("TDev-Anw."), withVersion(PrintNum(mea.tdApplType), mea.tdApplVers.ToStr()));
    Row('D', Mea::tr("TDev-Board"), withVersion(PrintNum(mea.tdBoardType), mea.tdBoardVers.ToStr()));
}

/// A section with no row gets an empty one, so that its heading keeps some space.
void Sheet::FillEmptySections()
{
    for (List<Mea::Item>::Handle item = list.First(); !item.IsNil(); item.Next()) {
        if (item().type != '-') {
            continue;
        }
        List<Mea::Item>::Handle next = item;
        next.Next();
        if (next.IsNil() || next().type == '-') {
            list.InsertAfter(item, {'x', QString(), QString()});
        }
    }
}

}

void Mea::Export(List<Item>& items, bool isPreView) const
{
    items.SetEmpty();
    Sheet sheet{*this, items, isPreView};
    sheet.AddGeneral();
    sheet.AddVerdict();
    sheet.AddReadings();
    sheet.AddPressures();
    sheet.AddLimits();
    sheet.AddInstrument();
    sheet.FillEmptySections();
}

void Mea::ExportUTF8(List<Item>& items) const
{
    const auto plain = [](QString text) {
        return text.remove(QString::fromUtf16(bullet)).remove(QString::fromUtf16(arrow)).simplified();
    };
    Export(items, false);
    for (List<Item>::Handle item = items.First(); !item.IsNil(); item.Next()) {
        if (item().type == '-') {
            item().value = item().name;
            item().name = tr("Sektion");
        }
        item().name = plain(item().name);
        item().value = plain(item().value);
    }
}

QString Mea::PrintCSV(const List<Item>& items)
{
    QString text;
    for (List<Item>::Handle item = items.First(); !item.IsNil(); item.Next()) {
        text += '"' + item().name + "\",\"" + item().value.simplified() + "\"\r\n";
    }
    return text;
}
