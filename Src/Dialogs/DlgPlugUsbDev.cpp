#include "Dialogs/DlgPlugUsbDev.h"

#include "Dialogs/DlgShared.h"
#include "Dialogs/DlgStatement.h"
#include "Globals.h"
#include "RRx/RRFile.h"
#include "ui_DlgPlugUsbDev.h"

using RR::String;

DlgPlugUsbDev::DlgPlugUsbDev()
    : QDialog(DlgShared::Parent(), Qt::FramelessWindowHint), ui(new Ui_DlgPlugUsbDev), timeout(30)
{
    ui->setupUi(this);
    DlgShared::Center(*this);
    connect(ui->buttonCancel, &QPushButton::clicked, this, &DlgPlugUsbDev::reject);
    connect(&timer, &QTimer::timeout, this, &DlgPlugUsbDev::OnTimeout);
    timer.start(1000);
}

DlgPlugUsbDev::~DlgPlugUsbDev() = default;

bool DlgPlugUsbDev::Show(String& usbMntPoint)
{
    usbMntPoint.SetEmpty();
    String node = GetDevNode();
    if (node.IsEmpty()) {
        DlgPlugUsbDev dialog;
        if (dialog.exec() != Accepted) {
            return false;
        }
        node = dialog.devNode;
    }

    QString message;
    if (node.IsEmpty()) {
        RR::Log("[ZARN] No USB storage device found\n");
        message = tr("Kein USB Wechseldatenträger gefunden");
    } else {
        usbMntPoint = MountUSBStorage(node);
        if (!usbMntPoint.IsEmpty()) {
            return true;
        }
        RR::Log("[ZARN] Device \"%s\" mount error\n", node.Adr());
        message = tr("Fehler ...\n\nKein Zugriff auf USB Wechseldatenträger");
    }
    DlgStatement::Show(message, DlgStatement::CLOSE_40, true);
    return false;
}

String DlgPlugUsbDev::GetDevNode()
{
    for (const char* filter : {"/dev/sd??", "/dev/sd?"}) {
        RR::List<RR::FileInfo> nodes;
        RR::DIR_List(filter, nodes, RR::DIR_FILES);
        if (!nodes.IsEmpty()) {
            nodes.Sort();
            const String node = nodes.First()().pathFile;
            RR::Log("[ZARN] Device node \"%s\" utilized\n", node.Adr());
            return node;
        }
    }
    return String();
}

void DlgPlugUsbDev::OnTimeout()
{
    static bool plugged = false;
    plugged = !plugged;
    ui->usbStickImg->setPixmap(QPixmap(plugged ? QStringLiteral(":/TImg/Images/USB-Stick_B.png")
                                               : QStringLiteral(":/TImg/Images/USB-Stick_A.png")));
    devNode = GetDevNode();
    if (!devNode.IsEmpty()) {
        accept();
        return;
    }
    if (timeout == 0) {
        RR::Log("[ZARN] Timeout mounting usb device\n");
        accept();
        return;
    }
    --timeout;
}
