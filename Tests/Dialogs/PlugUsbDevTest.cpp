#include "DialogTesting.h"

#include "Board/Board.h"
#include "Config.h"
#include "Dialogs/DlgPlugUsbDev.h"

#include <filesystem>
#include <fstream>

class PlugUsbDev : public DialogTest {
protected:
    void TearDown() override
    {
        Unmount(CFG::UsbMountPoint);
        for (const char* node : {"/dev/sda", "/dev/sda1", "/dev/sdb1", "/dev/sdb2"}) {
            std::filesystem::remove(Board::Locate(node));
        }
    }

    static void Plug(const char* node) { std::ofstream(Board::Locate(node)).close(); }

    RR::String mountPoint = "old";
    const std::function<bool()> show = [this] { return DlgPlugUsbDev::Show(mountPoint); };
};

TEST_F(PlugUsbDev, APluggedStickIsMountedWithoutAQuestionAndAPartitionFirst)
{
    EXPECT_TRUE(DlgPlugUsbDev::GetDevNode().IsEmpty());
    for (const char* node : {"/dev/sda", "/dev/sdb2", "/dev/sdb1", "/dev/sda1"}) {
        Plug(node);
        EXPECT_STREQ(DlgPlugUsbDev::GetDevNode(), node);
    }
    EXPECT_TRUE(show());
    EXPECT_STREQ(mountPoint, CFG::UsbMountPoint);
    // It is mounted already, so the next one fails.
    EXPECT_FALSE(Use(show, [] { Dismiss("Fehler ...\n\nKein Zugriff auf USB Wechseldatenträger"); }));
}

TEST_F(PlugUsbDev, TheWaitEndsWithAStickWithTheButtonOrAfterHalfAMinute)
{
    for (const auto& [end, mounted, seconds] :
         {std::tuple(+[] { Plug("/dev/sdb1"); }, true, 0), {[] { Tap({"buttonCancel"}); }, false, 0},
          {[] { Dismiss("Kein USB Wechseldatenträger gefunden"); }, false, 30}}) {
        elapsed.start();
        EXPECT_EQ(Use(show, [end = end] {
            AwaitShown("usbStickImg");
            QList<QImage> pictures;
            Await([&] {
                pictures += QApplication::activeModalWidget()->findChild<QLabel*>("usbStickImg")->pixmap().toImage();
                return pictures.last() != pictures.first();
            });
            end();
        }), mounted);
        EXPECT_STREQ(mountPoint, mounted ? CFG::UsbMountPoint : "");
        EXPECT_GE(elapsed.elapsed(), seconds * 1000);
        EXPECT_LT(elapsed.elapsed(), seconds * 1000 + 40000) << "a message nobody expected";
        TearDown();
    }
}
