#pragma once

#include "RRx/RRArray.h"
#include "RRx/RRTypeDefs.h"

/// Sets `inspectionMode` by the key file on a stick that is plugged already; asks and tells nobody. The stick stays
/// mounted unless its key is good.
void CheckForInspectionMode();

/// The bytes of a key file open the service mode: their check value alone decides.
bool VerifyInspKey(const RR::Array<RR::UInt08>& key);
