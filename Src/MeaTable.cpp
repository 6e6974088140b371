#include "MeaTable.h"

#include "Config.h"
#include "Globals.h"
#include "PrintIt.h"

#include <QBrush>
#include <cstring>
#include <strings.h>
#include <QIcon>

using namespace RR;

namespace {

enum Column { COLUMN_DATE = 0, COLUMN_NAME = 1, COLUMN_VERDICT = 2, COLUMN_NUM = 3 };

const char* const measurementEnding = ".mea"; // in capitals or not

String CachePath()
{
    return PATH_Merge(CFG::MeaHdrPath, CFG::MeaHdrFile);
}

/// Sees to it that there is a cache file, in a folder that may have to be made first on a new card.
bool ProvideCache()
{
    if (MMCAvailable() && !DIR_IsPresent(CFG::MeaHdrPath) && !DIR_Create(CFG::MeaHdrPath)) {
        Log("[ZARN] Error creating folder \"%s\"\n", CFG::MeaHdrPath);
        return false;
    }
    const String path = CachePath();
    if (!FILE_IsPresent(path) && !KeyValue().Save(path)) {
        Log("[ZARN] Error creating header file \"%s\"\n", path.Adr());
        return false;
    }
    return true;
}

template <class Files>
void ListMeasurements(Files& files)
{
    List<FileInfo> found;
    DIR_List(PATH_Merge(CFG::MeaFilesFolder, "*"), found, DIR_FILES);
    const SInt32 nameAt = PATH_Merge(CFG::MeaFilesFolder, "*").GetLen() - 1;
    // A folder of a card lists its files in the order of their making, which is that of their names.
    const SInt32 endingLength = static_cast<SInt32>(std::strlen(measurementEnding));
    typename Files::Handle latest;
    for (List<FileInfo>::Handle file = found.First(); !file.IsNil(); file.Next()) {
        const String& path = file().pathFile;
        if (path.GetLen() >= nameAt + endingLength && strcasecmp(path.Adr() + path.GetLen() - endingLength, measurementEnding) == 0
            && files.InsertUnique(path.Right(nameAt), latest, latest)) {
            std::swap(latest.Entry(), file());
        }
    }
}

const char* IconOf(const MeaHeader& header)
{
    switch (header.GetStatus()) {
    case MeaHeader::MODIFIED: return ":/TImg/Images/Mea_Modified_A.png";
    case MeaHeader::ACCEPTED: break;
    default: return ":/TImg/Images/Mea_Damaged_A.png";
    }
    switch (header.GetMeaResult()) {
    case Mea::PASSED: return ":/TImg/Images/Mea_Passed_A.png";
    case Mea::FAILED: return ":/TImg/Images/Mea_Failed_A.png";
    default: return ":/TImg/Images/Mea_NoResult_A.png";
    }
}

QVariant ForegroundOf(const MeaHeader& header)
{
    switch (header.GetStatus()) {
    case MeaHeader::REJECTED: return QBrush(Qt::gray);
    case MeaHeader::MODIFIED: return QBrush(Qt::red);
    default: return QVariant();
    }
}

}

MeaTable::MeaTable(QObject* parent) : QAbstractTableModel(parent) {}

void MeaTable::Update()
{
    table.SetEmpty();
    list.SetEmpty();
    if (!ProvideCache()) {
        return;
    }
    KeyValue cache;
    const bool readable = ReadCache(cache);
    Files files;
    ListMeasurements(files);
    const bool changed = Merge(files);
    RebuildTable();
    if (changed || !readable) {
        SaveHeaders(readable ? &cache : nullptr);
    }
    emit layoutChanged();
}

bool MeaTable::ReadCache(KeyValue& cache)
{
    if (!cache.Load(CachePath())) {
        // A load that met a key twice leaves it behind.
        cache.SetEmpty();
        return false;
    }
    for (KeyValue::Entry entry = cache.First(); entry.IsValid(); entry.Next()) {
        const List<MeaHeader>::Handle header = list.Append();
        if (!header().Import(entry.GetKey(), entry.GetValue())) {
            list.RemoveLast();
        }
    }
    return true;
}

/// Removes the headers of files that are gone, and reads what is new or changed; true if there was any of these.
/// `files` is used up.
bool MeaTable::Merge(Files& files)
{
    bool changed = false;
    for (List<MeaHeader>::Handle header = list.First(); !header.IsNil();) {
        Files::Handle file = files.First();
        // Both run in the order of the names, so the next file usually is the one.
        if (file.IsNil() || (file.GetKey() != header().GetFileName() && !files.Find(header().GetFileName(), file))) {
            const bool isLast = header.IsLast();
            list.Remove(header);
            if (isLast) {
                header.SetNil();
            }
            changed = true;
            continue;
        }
        if (file.Entry().size != header().GetFileSize() || file.Entry().modTime != header().GetFileTime()) {
            header().Setup(file.GetKey());
            changed = true;
        }
        files.Remove(file);
        header.Next();
    }
    for (Files::Handle file = files.First(); !file.IsNil(); file.Next()) {
        list.Append()().Setup(file.GetKey());
        changed = true;
    }
    return changed;
}

void MeaTable::RebuildTable()
{
    list.Sort();
    table.SetSize(list.GetCount());
    SInt32 row = 0;
    for (List<MeaHeader>::Handle header = list.First(); !header.IsNil(); header.Next()) {
        table[row++] = header;
    }
}

/// `inFile` is what the cache file holds, null if that can't be told. Nothing is written if it is the same again, as with a
/// file whose name the cache can't hold: it is new each time.
void MeaTable::SaveHeaders(const KeyValue* inFile) const
{
    KeyValue cache;
    for (List<MeaHeader>::Handle header = list.First(); !header.IsNil(); header.Next()) {
        String key;
        String value;
        header().Export(key, value);
        cache(key, value);
    }
    if (inFile != nullptr && cache == *inFile) {
        return;
    }
    const String path = CachePath();
    if (!cache.Save(path)) {
        Log("[ZARN] Error writing file \"%s\"\n", path.Adr());
    }
}

const MeaHeader* MeaTable::operator[](int index) const
{
    return index >= 0 && index < table.GetSize() ? &table[index]() : nullptr;
}

int MeaTable::rowCount(const QModelIndex&) const
{
    return table.GetSize();
}

int MeaTable::columnCount(const QModelIndex&) const
{
    return COLUMN_NUM;
}

QVariant MeaTable::DisplayText(const MeaHeader& header, int column) const
{
    switch (column) {
    case COLUMN_DATE: {
        const Date& date = header.GetMeaTime().GetDate();
        return date == Date::Today() ? tr("heute") : PrintDate(date);
    }
    case COLUMN_NAME: return header.GetMeaName();
    default: return QVariant();
    }
}

QVariant MeaTable::data(const QModelIndex& index, int role) const
{
    const MeaHeader* const header = (*this)[index.row()];
    if (header == nullptr) {
        return QVariant();
    }
    switch (role) {
    case Qt::DisplayRole: return DisplayText(*header, index.column());
    case Qt::DecorationRole: return index.column() == COLUMN_VERDICT ? QIcon(IconOf(*header)) : QVariant();
    case Qt::TextAlignmentRole: {
        const Qt::Alignment horizontally = index.column() == COLUMN_NAME ? Qt::AlignLeft : Qt::AlignHCenter;
        return int(horizontally | Qt::AlignVCenter);
    }
    case Qt::ForegroundRole: return ForegroundOf(*header);
    default: return QVariant();
    }
}

QVariant MeaTable::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation == Qt::Horizontal && role == Qt::DisplayRole) {
        switch (section) {
        case COLUMN_DATE: return tr("Datum");
        case COLUMN_NAME: return tr("Name");
        default: break;
        }
    }
    return QVariant();
}
