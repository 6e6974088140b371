#include "DialogTesting.h"

#include "Board/Board.h"
#include "Config.h"
#include "Dialogs/DlgPlugUsbDev.h"

#include <filesystem>
#include <fstream>

namespace fs = std::filesystem;

class PlugUsbDevTest : public DialogTest {
protected:
    void SetUp() override
    {
        DialogTest::SetUp();
        TearDown();
    }
    void TearDown() override
    {
        Unmount(CFG::UsbMountPoint);
        for (const char* node : {"/dev/sda", "/dev/sda1", "/dev/sdb1", "/dev/sdb2"}) {
            Pull(node);
        }
    }

    static void Plug(const char* node) { std::ofstream(Board::Locate(node)).close(); }
    static void Pull(const char* node) { fs::remove(Board::Locate(node)); }

    /// The text of the message that `show` ends with, empty if it ends without.
    static QString MessageOf(const std::function<void()>& show)
    {
        QString message;
        bool ended = false;
        Robot::When([&] { return ended || Robot::IsShown("buttonClose"); }, [&] {
            if (!ended) {
                message = Robot::TextOf("body");
                QApplication::activeModalWidget()->close();
            }
        });
        show();
        ended = true;
        QTest::qWait(50);
        return message;
    }
};

TEST_F(PlugUsbDevTest, APluggedStickIsMountedWithoutAQuestionAndAPartitionFirst)
{
    EXPECT_TRUE(DlgPlugUsbDev::GetDevNode().IsEmpty());
    for (const char* node : {"/dev/sda", "/dev/sdb2", "/dev/sdb1", "/dev/sda1"}) {
        Plug(node);
        EXPECT_STREQ(DlgPlugUsbDev::GetDevNode(), node);
    }
    RR::String mountPoint = "old";
    EXPECT_EQ(MessageOf([&] { EXPECT_TRUE(DlgPlugUsbDev::Show(mountPoint)); }), QString());
    EXPECT_STREQ(mountPoint, CFG::UsbMountPoint);
    // It is mounted already, so the next one fails.
    EXPECT_EQ(MessageOf([&] { EXPECT_FALSE(DlgPlugUsbDev::Show(mountPoint)); }),
              QString::fromUtf8("Fehler ...\n\nKein Zugriff auf USB Wechseldatenträger"));
    EXPECT_TRUE(mountPoint.IsEmpty());
}

TEST_F(PlugUsbDevTest, AStickIsAwaitedForHalfAMinute)
{
    RR::String mountPoint = "old";
    QString message;
    const double took = SecondsOf([&] { message = MessageOf([&] { EXPECT_FALSE(DlgPlugUsbDev::Show(mountPoint)); }); });
    EXPECT_GE(took, 30);
    EXPECT_LT(took, 60);
    EXPECT_EQ(message, QString::fromUtf8("Kein USB Wechseldatenträger gefunden"));
    EXPECT_TRUE(mountPoint.IsEmpty());
}

TEST_F(PlugUsbDevTest, TheWaitEndsWithTheStickOrWithTheButton)
{
    for (const bool plug : {true, false}) {
        QImage first;
        RR::String mountPoint;
        const auto image = [] { return QApplication::activeModalWidget()->findChild<QLabel*>("usbStickImg")->pixmap().toImage(); };
        Robot::When([] { return Robot::IsShown("usbStickImg"); }, [&] {
            first = image();
            Robot::When([&, image] { return image() != first; }, [plug] {
                if (plug) {
                    Plug("/dev/sdb1");
                } else {
                    QTest::mouseClick(QApplication::activeModalWidget()->findChild<QWidget*>("buttonCancel"), Qt::LeftButton);
                }
            });
        });
        EXPECT_EQ(MessageOf([&] { EXPECT_EQ(DlgPlugUsbDev::Show(mountPoint), plug); }), QString());
        EXPECT_STREQ(mountPoint, plug ? CFG::UsbMountPoint : "");
        TearDown();
    }
}
