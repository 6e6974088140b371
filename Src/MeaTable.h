#pragma once

// First: moc of Qt 6.4 stumbles over the standard headers that RR includes unless Qt's are known.
#include <QAbstractTableModel>

#include "MeaHeader.h"
#include "RRx/RRArray.h"
#include "RRx/RRFile.h"
#include "RRx/RRKeyValue.h"
#include "RRx/RRList.h"
#include "RRx/RRSkipList.h"

/// The stored measurements as the model of their list, the oldest first. Columns: date, name, verdict.
/// It shows the folder as the last `Update` found it. For the event loop's thread.
class MeaTable : public QAbstractTableModel {
    Q_OBJECT

public:
    /// Empty until the first `Update`.
    explicit MeaTable(QObject* parent);

    /// Brings the list up to date with the measurement folder. Headers come from the cache file in that folder; only
    /// files that it doesn't know with their present size and time are opened, and only then is it written.
    /// Blocks meanwhile. Without a folder or a cache file, and no way to make them, the list is left empty and the
    /// views aren't told.
    void Update();

    bool IsEmpty() const { return table.IsEmpty(); }
    RR::SInt32 GetSize() const { return table.GetSize(); }
    /// Good until the next `Update`; null for a bad index.
    const MeaHeader* operator[](int index) const;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;

private:
    /// By the bare name.
    using Files = RR::SkipList<RR::String, RR::FileInfo>;

    bool ReadCache(RR::KeyValue& cache);
    bool Merge(Files& files);
    void RebuildTable();
    void SaveHeaders(const RR::KeyValue* inFile) const;

    QVariant DisplayText(const MeaHeader& header, int column) const;

    RR::List<MeaHeader> list;
    /// One handle a row, in the order of `list`.
    RR::Array<RR::List<MeaHeader>::Handle> table;
};
