#include "InspectionMode.h"

#include "Config.h"
#include "Dialogs/DlgPlugUsbDev.h"
#include "Globals.h"
#include "RRx/RRFile.h"
#include "TavorDev.h"

bool VerifyInspKey(const RR::Array<RR::UInt08>& key)
{
    RR::UInt32 crc = 0xFFFFFFFF;
    for (RR::SInt32 i = 0; i < key.GetSize(); ++i) {
        UpdateCRC32(key[i], crc);
    }
    return crc == 0x7b31e4a6;
}

void CheckForInspectionMode()
{
    inspectionMode = false;
    const RR::String node = DlgPlugUsbDev::GetDevNode();
    if (node.IsEmpty()) {
        return;
    }
    const RR::String mountPoint = MountUSBStorage(node);
    if (mountPoint.IsEmpty()) {
        RR::Log("[ZARN] Device \"%s\" mount error\n", node.Adr());
        return;
    }
    RR::Array<RR::UInt08> key;
    if (RR::FILE_Read(RR::PATH_Merge(mountPoint, CFG::InspKeyFileName), key) && VerifyInspKey(key)) {
        RR::Log("[ZARN] Inspection mode enabled\n");
        inspectionMode = true;
        Unmount(mountPoint);
    }
}
