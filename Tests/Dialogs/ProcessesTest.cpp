#include "ProcessTesting.h"

#include "Dialogs/DlgEvacuation.h"
#include "Dialogs/DlgInnerPressWarning.h"
#include "Dialogs/DlgInspJobStart.h"

using Processes = ProcessDialogTest;
using enum TavorDev::PressureSensor;

static void SetPressure(TavorDev::PressureSensor sensor, double bar)
{
    Robot::OnGui([=] { scripted.pressure[sensor] = bar; });
}

TEST_F(Processes, EvacuationOpensTheDepotIfItHoldsGas)
{
    for (const auto& [bar, commands] :
         {std::pair(-0.099, "V4+ V1+ V1- V4-"), {-0.1, "V4- V1+ V1- V4-"}, {RR::INVALID_DOUBLE, "V4- V1+ V1- V4-"}}) {
        scripted.pressure[PRESSENS_P4] = bar;
        Use(DlgEvacuation::Show, [] { Tap({"closeButton"}); });
        EXPECT_EQ(scripted.TakeCommands(), commands) << bar;
    }
}

TEST_F(Processes, EvacuationClosesTheEmptyDepotAndIsLeftWithoutAQuestionOnlyInLastingBalance)
{
    scripted.pressure[PRESSENS_P4] = 0.5;
    Use(DlgEvacuation::Show, [this] {
        AwaitShown("animImg2");
        SetPressure(PRESSENS_P4, -0.1);
        Await([] { return scripted.Count("V4-") == 1; });
        SetPressure(PRESSENS_P4, 0.5);
        SetPressure(PRESSENS_P3, 0.02);
        AwaitText("pressValue", "0.020 bar");
        // In balance, but not for long enough; nobody answers.
        elapsed.start();
        Robot::OnGui([] {
            scripted.pressure[PRESSENS_P3] = 1;
            Tap({"exitButton"});
        });
        AwaitText("body", "Die Druckverhältnisse im Inneren des Gerätes sind noch unausgeglichen."
                          "<p><b>Evakuierung trozdem Abbrechen?</b>");
        AwaitShown("closeButton");
        EXPECT_GE(elapsed.elapsed(), 19000);
        SetPressure(PRESSENS_P1, 0.7);
        Tap({"exitButton", "buttonReject", "exitButton", "buttonAccept"});
    });
    EXPECT_EQ(scripted.TakeCommands(), "V4+ V1+ V4- V1- V4-");
}

TEST_F(Processes, TheInspectionRemembersTheSequenceAndItsPasses)
{
    for (const auto& [stored, tapped, type, passes, seconds, keptPasses, keptSeconds] :
         {std::tuple(7, "headerTxt", IJ_BD, 2, 400, 2, 400), {IJ_BE, "headerTxt", IJ_BE, 2, 400, 2, 400},
          {IJ_BD, "labelTypeHTxt", IJ_H, RR::INVALID, 0, 1, RR::INVALID},
          {IJ_I, "headerTxt", IJ_I, RR::INVALID, 0, 1, RR::INVALID}}) {
        settings = Settings::def;
        settings.inspJobNo = stored;
        const InspJob job = Use(DlgInspJobStart::Show, [tapped = tapped] {
            TapArrow("setInspJobPasses", true, "2");
            TapArrow("setSensPassageTime", true, "500 s");
            TapArrow("setSensPassageTime", true, "600 s");
            TapArrow("setSensPassageTime", false, "500 s");
            TapArrow("setSensPassageTime", false, "400 s");
            Tap({tapped, "buttonStart"});
        });
        EXPECT_EQ(std::tuple(job.type, job.passNo, job.passMax, job.passTime), std::tuple(type, 0, passes, seconds));
        EXPECT_EQ(settings.inspJobNo, type);
        EXPECT_EQ(std::pair(settings.inspJobPasses, settings.inspJobPassTime), std::pair(keptPasses, keptSeconds));
    }

    EXPECT_EQ(Use(DlgInspJobStart::Show, [] { Tap({"labelTypeBETxt", "buttonCancel"}); }).type, IJ_NONE);
    EXPECT_EQ(settings.inspJobNo, IJ_I);
    const InspJob factory = Use(DlgInspJobStart::Show, [] {
        TapArrow("setSensPassageTime", true, "35 s");
        Tap({"setFactoryDefaults", "buttonStart"});
    });
    EXPECT_EQ(std::tuple(factory.type, factory.passMax, factory.passTime), std::tuple(IJ_BD, 1, 450));
}

TEST_F(Processes, TheInnerPressureIsMeasuredAgainstTheAir)
{
    for (const auto& [inlet, operation, air, balanced] :
         {std::tuple(0.791, 0.791, 1000, true), {9.0, 1.209, 1000, true}, {0.79, 1.0, 1000, false},
          {1.0, 0.79, 1000, false}, {1.0, 1.21, 1000, false}, {0.8, 0.8, 1013, false}, {0.0, 5.0, RR::INVALID, true},
          {RR::INVALID_DOUBLE, 5.0, 1000, true}, {0.0, RR::INVALID_DOUBLE, 1000, true}}) {
        scripted.pressure[PRESSENS_P1] = inlet;
        scripted.pressure[PRESSENS_P3] = operation;
        scripted.airPressure = air;
        EXPECT_EQ(DlgInnerPressWarning::InnerPressureBalanced(), balanced) << inlet << ' ' << operation << ' ' << air;
    }
}

TEST_F(Processes, AnUnbalancedInstrumentWaitsForLastingBalanceOrShutsDown)
{
    EXPECT_TRUE(DlgInnerPressWarning::Show());
    EXPECT_EQ(scripted.TakeCommands(), "home");

    scripted.pressure[PRESSENS_P3] = 1.5;
    EXPECT_FALSE(Use(DlgInnerPressWarning::Show, [] {
        for (const auto& [bar, diagnosis] : {std::pair(1.5, "(zu hoch)"), {0.5, "(zu niedrig)"}, {1.21, ""}}) {
            SetPressure(PRESSENS_P3, bar);
            AwaitText("pressDiagnosis", diagnosis);
        }
        AwaitText("pressValue", "1.210 bar");
        Tap({"buttonShutDown"});
    }));

    // Balance, an interruption, and at last an air pressure that can't be read, which counts as balance too.
    const auto then = [](const char* value, const std::function<void()>& act) {
        Robot::When([value] { return Robot::TextOf("pressValue") == value; }, act);
    };
    then("1.210 bar", [&] {
        scripted.pressure[PRESSENS_P3] = 1.1;
        then("1.100 bar", [&] {
            scripted.pressure[PRESSENS_P3] = 1.3;
            then("1.300 bar", [&] {
                scripted.airPressure = RR::INVALID;
                elapsed.start();
            });
        });
    });
    bool told = false;
    Robot::When([] { return Robot::TextOf("pressDiagnosis") == " ... ungültig"; }, [&] { told = true; });
    EXPECT_TRUE(DlgInnerPressWarning::Show());
    EXPECT_TRUE(told);
    EXPECT_GE(elapsed.elapsed(), 5000);
}
