#include "ProcessTesting.h"

#include "Dialogs/DlgEmptyDepot.h"
#include "Dialogs/DlgEvacuation.h"
#include "Dialogs/DlgInnerPressWarning.h"
#include "Dialogs/DlgInspJobStart.h"
#include "JobStateMachine.h"

#include <algorithm>

using Jobs = JobStateMachine;

class Processes : public ProcessDialogTest {
protected:
    static void SetPressure(TavorDev::PressureSensor sensor, double bar)
    {
        Robot::OnGui([=] { scripted.pressure[sensor] = bar; });
    }
    static int Commanded(const char* command)
    {
        int count = 0;
        Robot::OnGui([&] { count = scripted.Count(command); });
        return count;
    }
    static InspJob StartInspection(const std::function<void()>& touches)
    {
        const Robot::Meanwhile user(touches);
        return DlgInspJobStart::Show();
    }
};

TEST_F(Processes, TheDepotIsEmptiedThroughThePortThatIsTouched)
{
    const struct {
        bool external;
        const char* tapped;
        Jobs::Type type;
    } rows[] = {{false, "labelTypeD_1", Jobs::TYPE_D}, {false, "labelTypePE", Jobs::TYPE_E}, {true, "buttonStartD", Jobs::TYPE_K},
                {true, "buttonStartE", Jobs::TYPE_L},  {true, "buttonCancel", Jobs::TYPE_0}, {false, "buttonCancel", Jobs::TYPE_0}};
    settings.unitPressure = Pressure::PSI;
    for (const auto& row : rows) {
        Jobs::Type type = Jobs::TYPE_R;
        const Robot::Meanwhile user([&] {
            EXPECT_EQ(Get("labelTypePD", "text").toString(), "(max. 160 psi abs.)");
            if (row.external) {
                Tap("chooseMeaTypeMod");
            }
            Tap(row.tapped);
        });
        DlgEmptyDepot::Show(type);
        EXPECT_EQ(type, row.type) << row.tapped;
    }
}

TEST_F(Processes, EvacuationOpensTheDepotOnlyIfItHoldsGas)
{
    const struct {
        double depot;
        const char* commands;
    } rows[] = {{0.5, "V4+ V1+"}, {-0.099, "V4+ V1+"}, {-0.1, "V4- V1+"}, {RR::INVALID_DOUBLE, "V4- V1+"}};
    for (const auto& row : rows) {
        scripted.pressure[TavorDev::PRESSENS_P4] = row.depot;
        LookAt(DlgEvacuation::Show, [&](QWidget&) { EXPECT_EQ(scripted.TakeCommands(), row.commands); });
        EXPECT_EQ(scripted.TakeCommands(), "V1- V4-");
    }
}

TEST_F(Processes, EvacuationClosesTheDepotOnceItIsEmptyOrUnknown)
{
    for (const double bar : {-0.1, RR::INVALID_DOUBLE}) {
        scripted.Reset();
        scripted.pressure[TavorDev::PRESSENS_P4] = 0.5;
        scripted.pressure[TavorDev::PRESSENS_P3] = 0.9;
        const Robot::Meanwhile user([&] {
            Await([] { return Robot::TextOf("pressValue") == "0.900 bar"; });
            EXPECT_EQ(Commanded("V4-"), 0);
            SetPressure(TavorDev::PRESSENS_P4, bar);
            Await([] { return scripted.Count("V4-") == 1; });
            SetPressure(TavorDev::PRESSENS_P4, 0.5);
            SetPressure(TavorDev::PRESSENS_P3, 0.8);
            Await([] { return Robot::TextOf("pressValue") == "0.800 bar"; });
            EXPECT_EQ(Commanded("V4-"), 1);
            EXPECT_EQ(Commanded("V4+"), 1);
            Await([] { return Robot::IsShown("animImg2"); });
            Await([] { return Robot::IsShown("animImg1"); });
            Tap("closeButton");
        });
        DlgEvacuation::Show();
    }
}

TEST_F(Processes, EvacuationIsLeftWithoutAQuestionOnlyInLastingBalance)
{
    const Robot::Meanwhile user([] {
        EXPECT_TRUE(Robot::WaitForShown("closeButton", limitMs));
        SetPressure(TavorDev::PRESSENS_P3, 0.02);
        EXPECT_TRUE(Robot::WaitForShown("exitButton", limitMs));
        // In balance, but not for long enough; nobody answers.
        QElapsedTimer balanced;
        balanced.start();
        Robot::OnGui([] {
            scripted.pressure[TavorDev::PRESSENS_P3] = 1;
            QTimer::singleShot(0, qApp, [] { QTest::mouseClick(QApplication::activeModalWidget()->findChild<QWidget*>("exitButton"), Qt::LeftButton); });
        });
        EXPECT_TRUE(Robot::WaitForShown("body", limitMs));
        EXPECT_EQ(Robot::TextOf("body"), "Die Druckverhältnisse im Inneren des Gerätes sind noch unausgeglichen.<p><b>Evakuierung trotzdem Abbrechen?</b>");
        EXPECT_TRUE(Robot::WaitForShown("closeButton", limitMs));
        EXPECT_GE(balanced.elapsed(), 19000);
        SetPressure(TavorDev::PRESSENS_P1, 0.7);
        EXPECT_TRUE(Robot::WaitForShown("exitButton", limitMs));
        for (const char* answer : {"buttonReject", "buttonAccept"}) {
            Tap("exitButton");
            Tap(answer);
        }
    });
    DlgEvacuation::Show();
    EXPECT_EQ(scripted.Count("V1-"), 1);
}

TEST_F(Processes, TheInspectionRemembersTheSequenceAndItsPasses)
{
    settings.inspJobNo = 7;
    const InspJob first = StartInspection([] {
        EXPECT_TRUE(Get("chooseInspJobBD", "checked").toBool());
        EXPECT_EQ(Get("setSensPassageTime", "text").toString(), "450 s");
        TapArrow("setInspJobPasses", true);
        const struct {
            bool up;
            const char* text;
        } steps[] = {{true, "500 s"}, {true, "600 s"}, {false, "500 s"}, {false, "400 s"}};
        for (const auto& step : steps) {
            TapArrow("setSensPassageTime", step.up);
            EXPECT_EQ(Get("setSensPassageTime", "text").toString(), step.text);
        }
        Tap("labelTypeBETxt");
        Tap("buttonStart");
    });
    EXPECT_EQ(first.type, IJ_BE);
    EXPECT_EQ(first.passNo, 0);
    EXPECT_EQ(first.passMax, 2);
    EXPECT_EQ(first.passTime, 400);
    EXPECT_EQ(settings.inspJobNo, IJ_BE);
    EXPECT_EQ(settings.inspJobPasses, 2);
    EXPECT_EQ(settings.inspJobPassTime, 400);

    for (const auto& [label, type] : {std::pair("labelTypeHTxt", IJ_H), std::pair("labelTypeITxt", IJ_I)}) {
        const InspJob flushing = StartInspection([label = label] { Tap(label), Tap("buttonStart"); });
        EXPECT_EQ(flushing.type, type);
        EXPECT_EQ(flushing.passMax, RR::INVALID);
        EXPECT_EQ(flushing.passTime, 0);
        EXPECT_EQ(settings.inspJobNo, type);
        EXPECT_EQ(settings.inspJobPasses, 1);
        EXPECT_EQ(settings.inspJobPassTime, RR::INVALID);
    }

    const InspJob cancelled = StartInspection([] {
        EXPECT_TRUE(Get("chooseInspJobI", "checked").toBool());
        EXPECT_EQ(Get("setSensPassageTime", "text").toString(), "30 s");
        TapArrow("setSensPassageTime", true);
        EXPECT_EQ(Get("setSensPassageTime", "text").toString(), "35 s");
        Tap("setFactoryDefaults");
        Await([] { return Robot::TextOf("setSensPassageTime") == "450 s"; });
        EXPECT_TRUE(Get("chooseInspJobBD", "checked").toBool());
        EXPECT_EQ(Get("setInspJobPasses", "value").toInt(), 1);
        Tap("buttonCancel");
    });
    EXPECT_EQ(cancelled.type, IJ_NONE);
    EXPECT_EQ(cancelled.passMax, RR::INVALID);
    EXPECT_EQ(settings.inspJobNo, IJ_I);
}

TEST_F(Processes, TheInnerPressureIsMeasuredAgainstTheAir)
{
    const struct {
        double inlet, operation;
        RR::SInt32 air;
        bool balanced;
    } rows[] = {{1, 1, 1000, true},
                {0.791, 0.791, 1000, true},
                {0.79, 1, 1000, false},
                {1, 0.79, 1000, false},
                {9, 1.209, 1000, true},
                {1, 1.21, 1000, false},
                {0.8, 0.8, 1013, false},
                {RR::INVALID_DOUBLE, 5, 1000, true},
                {0, RR::INVALID_DOUBLE, 1000, true},
                {0, 5, RR::INVALID, true}};
    for (const auto& row : rows) {
        scripted.pressure[TavorDev::PRESSENS_P1] = row.inlet;
        scripted.pressure[TavorDev::PRESSENS_P3] = row.operation;
        scripted.airPressure = row.air;
        EXPECT_EQ(DlgInnerPressWarning::InnerPressureBalanced(), row.balanced) << row.inlet << ' ' << row.operation << ' ' << row.air;
    }
}

TEST_F(Processes, AnUnbalancedInstrumentWaitsForLastingBalanceOrShutsDown)
{
    EXPECT_TRUE(DlgInnerPressWarning::Show());
    EXPECT_EQ(scripted.TakeCommands(), "home");

    scripted.pressure[TavorDev::PRESSENS_P3] = 1.5;
    {
        const Robot::Meanwhile user([] {
            const struct {
                double bar;
                const char* value;
                const char* diagnosis;
            } rows[] = {{1.5, "1.500 bar", "(zu hoch)"}, {0.5, "0.500 bar", "(zu niedrig)"}, {1.21, "1.210 bar", ""}};
            for (const auto& row : rows) {
                SetPressure(TavorDev::PRESSENS_P3, row.bar);
                Await([&] { return Robot::TextOf("pressValue") == row.value && Robot::TextOf("pressDiagnosis") == row.diagnosis; });
            }
            Tap("buttonShutDown");
        });
        EXPECT_FALSE(DlgInnerPressWarning::Show());
    }
    EXPECT_EQ(scripted.TakeCommands(), "home");

    // Balance, an interruption, and at last an air pressure that can't be read, which counts as balance too.
    QElapsedTimer balanced;
    Robot::When([] { return Robot::TextOf("pressValue") == "1.210 bar"; }, [&] {
        scripted.pressure[TavorDev::PRESSENS_P3] = 1.1;
        Robot::When([] { return Robot::TextOf("pressValue") == "1.100 bar"; }, [&] {
            scripted.pressure[TavorDev::PRESSENS_P3] = 1.3;
            Robot::When([] { return Robot::TextOf("pressValue") == "1.300 bar"; }, [&] {
                scripted.airPressure = RR::INVALID;
                balanced.start();
            });
        });
    });
    QString last;
    Robot::When([] { return Robot::TextOf("pressDiagnosis").contains("..."); }, [&] { last = Robot::TextOf("pressDiagnosis"); });
    EXPECT_TRUE(DlgInnerPressWarning::Show());
    EXPECT_EQ(last, " ... ungültig");
    ASSERT_TRUE(balanced.isValid());
    EXPECT_GE(balanced.elapsed(), 5000);
}
