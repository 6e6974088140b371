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
/// Letters of a name that are kept: more than any screen shows, and so few that each list that was read can be read
/// again once it is written.
constexpr int maxNameLetters = 1000;
static_assert(2 * (1 + DlgNameList::maxNames * (maxNameLetters + 3)) <= maxFileBytes);

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

/// The name in what stands between two separators. `shortened` is set where letters had to go.
QString NameIn(const QString& part, bool& shortened)
{
    // Neither upper case nor an underscore makes white space or quotes. A long name of letters that become two would
    // take the toolkit minutes to turn to upper case, so it is cut before.
    QString name = part.simplified();
    qsizetype first = 0;
    while (first < name.size() && name[first] == quote) {
        ++first;
    }
    name = name.sliced(first);
    shortened = shortened || name.size() > maxNameLetters;
    name = name.left(maxNameLetters).toUpper().left(maxNameLetters);
    for (QChar& letter : name) {
        if (rejChar.contains(letter)) {
            letter = '_';
        }
    }
    while (name.endsWith(quote)) {
        name.chop(1);
    }
    return name;
}

}

bool DlgNameList::DecodeNameList(const RR::Array<RR::UInt08>& bytes, QStringList& list)
{
    list.clear();
    const Units text(bytes);
    QSet<QString> known;
    QString part;
    bool complete = true;
    bool shortened = false;
    for (RR::SInt32 i = 0; i <= text.GetCount() && complete; ++i) {
        const bool atEnd = i == text.GetCount();
        const QChar unit = atEnd ? QChar() : text[i];
        if (!atEnd && !sepChar.contains(unit)) {
            // A NUL would end the list when it is saved.
            if (!unit.isNull()) {
                part += unit;
            }
            continue;
        }
        const QString name = NameIn(part, shortened);
        part.clear();
        if (name.isEmpty() || known.contains(name)) {
            continue;
        }
        complete = list.size() < maxNames;
        if (complete) {
            known.insert(name);
            list.append(name);
        }
    }
    if (shortened) {
        RR::Log("[ZARN] Names in namelist reduced to %d letters.\n", maxNameLetters);
    }
    return complete;
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
