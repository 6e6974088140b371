#pragma once

#include "TavorDev.h"

/// One block of the sensor unit's memory.
struct MemRecord {
    RR::UInt32 loc;         ///< location in the unit's memory
    RR::SInt32 num;         ///< valid bytes in `data`
    unsigned char data[64];
};

// The sensor unit firmware that is delivered with the program: the unit's own program, opaque here. The records
// follow each other without a gap, from location 0 on.
extern const MemRecord TDFW_MEM_RECORDS[];
extern const MemRecord* const TDFW_DATA_TABLE;
extern const RR::SInt32 TDFW_DATA_TABLE_SIZE;

/// Names it.
extern const TavorDev::Info TDFW_INFO;
