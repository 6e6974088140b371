#include "Dialogs/DlgNameList.h"

#include "Dialogs/DlgStatement.h"
#include "RRx/RRFile.h"

#include <QSet>

namespace {

const QLatin1String sepChar(";,\r\n");
const QLatin1String rejChar(":=*?\\/");
constexpr QChar quote('"');
/// Far above any list of names; keeps a stray file of another kind from filling the memory.
constexpr RR::SInt32 maxFileBytes = 32 << 20;

/// The content of a file as UTF-16 units.
class Units {
public:
    explicit Units(const RR::Array<RR::UInt08>& content) : bytes(content)
    {
        if (Pair(0, 1) == QChar::ByteOrderMark) {
            highByte = 0;
        } else if (Pair(1, 0) == QChar::ByteOrderMark) {
            highByte = 1;
        }
    }

    RR::SInt32 GetCount() const { return isLatin1() ? bytes.GetSize() : bytes.GetSize() / 2 - 1; }
    QChar operator[](RR::SInt32 index) const
    {
        const RR::SInt32 pos = 2 * (index + 1);
        return isLatin1() ? QChar(bytes[index]) : QChar(Pair(pos + highByte, pos + 1 - highByte));
    }

private:
    bool isLatin1() const { return highByte < 0; }
    char16_t Pair(RR::SInt32 high, RR::SInt32 low) const
    {
        return bytes.GetSize() < 2 ? u'\0' : static_cast<char16_t>(bytes[high] << 8 | bytes[low]);
    }

    const RR::Array<RR::UInt08>& bytes;
    /// Place of the high byte in a pair, -1 for Latin-1.
    int highByte = -1;
};

/// The name in what stands between two separators.
QString NameIn(const QString& part)
{
    QString name = part.toUpper();
    for (QChar& letter : name) {
        if (rejChar.contains(letter)) {
            letter = '_';
        }
    }
    name = name.simplified();
    qsizetype first = 0;
    qsizetype end = name.size();
    while (first < end && name[first] == quote) {
        ++first;
    }
    while (end > first && name[end - 1] == quote) {
        --end;
    }
    return name.mid(first, end - first);
}

}

bool DlgNameList::DecodeNameList(const RR::Array<RR::UInt08>& bytes, QStringList& list)
{
    list.clear();
    const Units text(bytes);
    QSet<QString> known;
    QString part;
    for (RR::SInt32 i = 0; i <= text.GetCount(); ++i) {
        const bool atEnd = i == text.GetCount();
        const QChar unit = atEnd ? QChar() : text[i];
        if (!atEnd && !sepChar.contains(unit)) {
            // A NUL would end the list when it is saved.
            if (!unit.isNull()) {
                part += unit;
            }
            continue;
        }
        const QString name = NameIn(part);
        part.clear();
        if (name.isEmpty() || known.contains(name)) {
            continue;
        }
        if (list.size() == maxNames) {
            return false;
        }
        known.insert(name);
        list.append(name);
    }
    return true;
}

bool DlgNameList::LoadNameList(const char* pathFile, QStringList& list)
{
    list.clear();
    RR::Array<RR::UInt08> bytes;
    const RR::SInt32 size = RR::FILE_ReadSize(pathFile);
    // A stick that is pulled meanwhile yields the beginning only, and names would go unnoticed.
    if (size > maxFileBytes || !RR::FILE_Read(pathFile, bytes) || bytes.GetSize() < size) {
        RR::Log("[ZARN] Error reading namelist file.\n");
        return false;
    }
    if (!DecodeNameList(bytes, list)) {
        RR::Log("[ZARN] Number of entries in namelist reduced to %d.\n", maxNames);
        DlgStatement::Show(tr("Liste der Namen wurde auf die\nHöchstmenge von %1 Einträgen begrenzt.").arg(maxNames),
                           DlgStatement::CLOSE_20, true);
    }
    return true;
}

bool DlgNameList::SaveNameList(const char* pathFile, const QStringList& list)
{
    QString text(QChar::ByteOrderMark);
    for (const QString& name : list) {
        if (text.size() > 1) {
            text += ',';
        }
        text += quote + name + quote;
    }
    const qsizetype nul = text.indexOf(QChar());
    text.truncate(nul < 0 ? text.size() : nul);

    RR::Array<RR::UInt08> bytes(static_cast<RR::SInt32>(2 * text.size()));
    RR::SInt32 pos = 0;
    for (const QChar unit : text) {
        bytes[pos++] = unit.cell();
        bytes[pos++] = unit.row();
    }
    bool full = false;
    if (RR::FILE_Write(pathFile, bytes, full)) {
        return true;
    }
    if (full) {
        RR::Log("[ZARN] Writing failed, no space left on device\n");
        DlgStatement::Show(tr("Wechseldatenträger ist voll"), DlgStatement::CLOSE_20, true);
    } else {
        RR::Log("[ZARN] Error writing measurement namelist file.\n");
    }
    return false;
}
