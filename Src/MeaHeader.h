#pragma once

#include "Mea.h"
#include "RRx/RRDateTime.h"
#include "RRx/RRFixPnt.h"
#include "RRx/RRString.h"

#include <QString>

/// What the list of the measurements shows of one file, together with the file's size and time, by which a change
/// of the file is noticed without opening it. A plain value.
class MeaHeader {
public:
    /// The first three as in `Mea::LoadState`.
    enum Status {
        ACCEPTED = 0,
        REJECTED = 1, ///< there, but no readable measurement
        MODIFIED = 2, ///< readable, but no longer as the instrument wrote it
        DEVOID = 3    ///< empty, or of unknown state
    };

    MeaHeader() { SetEmpty(); }

    /// Leaves `GetMeaResult()` as it was: the status tells whether it counts.
    void SetEmpty();
    /// Reads the measurement folder's `file`, also if it is no measurement. False if it can't be reached, the header is
    /// empty then, or isn't a regular file, the header holds its name only then.
    bool Setup(const RR::String& file);

    /// The form in the cache: the file's name as the key, the rest joined by "|".
    void Export(RR::String& key, RR::String& value) const;
    /// False, with an empty header, for another number of fields; a field that can't be read is left without value.
    bool Import(const RR::String& key, const RR::String& value);

    /// The same time of measurement and the same file name; order is by these two as well, the oldest first.
    bool operator==(const MeaHeader& other) const { return meaTime == other.meaTime && fileName == other.fileName; }
    bool operator>(const MeaHeader& other) const
    {
        return meaTime == other.meaTime ? fileName > other.fileName : meaTime > other.meaTime;
    }
    bool operator<(const MeaHeader& other) const { return other > *this; }

    /// Without its folder.
    const RR::String& GetFileName() const { return fileName; }
    /// Bytes.
    RR::SInt32 GetFileSize() const { return fileSize; }
    /// Last change, UTC.
    const RR::DateTime& GetFileTime() const { return fileTime; }
    /// Local time.
    const RR::DateTime& GetMeaTime() const { return meaTime; }
    const QString& GetMeaName() const { return meaName; }
    /// Volume percent.
    RR::FixPnt1 GetMeaAmountSF6() const { return meaAmountSF6; }
    Mea::Result GetMeaResult() const { return meaResult; }
    Status GetStatus() const { return status; }

private:
    RR::String fileName;
    RR::SInt32 fileSize;
    RR::DateTime fileTime;
    RR::DateTime meaTime;
    QString meaName;
    RR::FixPnt1 meaAmountSF6;
    Mea::Result meaResult = Mea::NO_RESULT;
    Status status;
};

RR::String BiC(MeaHeader::Status status);
/// An unknown text gives `DEVOID`.
void BiC(const RR::String& text, MeaHeader::Status& status);
