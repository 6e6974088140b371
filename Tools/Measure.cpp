#include "Robot.h"

#include "Board/Board.h"
#include "Config.h"
#include "JobStateMachine.h"
#include "Mea.h"
#include "RRx/RRFile.h"
#include "RRx/RRList.h"

#include <QApplication>
#include <QDir>
#include <cstdio>
#include <cstdlib>

// One measurement from the start button to the stored file, pressed as a user would, for whoever wants to see the
// whole instrument work. The folder for the pictures is named by ZARN_OUT, the current one without it.

namespace {

constexpr int preparationLimitMs = 15 * 60 * 1000;
constexpr int pumpBackLimitMs = 10 * 60 * 1000;
constexpr int measurementLimitMs = 20 * 60 * 1000;

bool fault(const char* text)
{
    std::printf("measure: %s\n", text);
    return false;
}

QString PictureFile(const char* name)
{
    const QString folder = qEnvironmentVariable("ZARN_OUT", ".");
    QDir().mkpath(folder);
    return folder + "/" + name;
}

RR::List<RR::FileInfo> StoredFiles()
{
    RR::List<RR::FileInfo> list;
    RR::DIR_List(RR::PATH_Merge(CFG::MeaFilesFolder, "*.mea"), list, RR::DIR_FILES);
    list.Sort();
    return list;
}

bool TakeMeasurement()
{
    if (!Robot::WaitForShown("startMea", preparationLimitMs) || !Robot::WaitFor([] { return tavorDev.GetMode() == TavorDev::MODE_APPL && !jobSTM.IsRunning(); }, preparationLimitMs)) {
        return fault("the instrument doesn't become ready");
    }
    Robot::TakePicture(PictureFile("1-ready.png"));
    if (!Robot::Click("startMea") || !Robot::Click("buttonStartB")) {
        return fault("the measurement can't be chosen");
    }
    if (!Robot::WaitForShown("lineEdit") || !Robot::Click("buttonClr") || !Robot::TypeOnScreen("FELD 7") || !Robot::Click("buttonOk")) {
        return fault("the name can't be typed");
    }
    if (!Robot::WaitFor([] { return jobSTM.GetType() == JobStateMachine::TYPE_B && jobSTM.GetProgress() >= 50; }, measurementLimitMs)) {
        return fault("the measurement doesn't get on");
    }
    Robot::TakePicture(PictureFile("2-measuring.png"));
    if (!Robot::WaitForShown("resultText", measurementLimitMs)) {
        return fault("the measurement doesn't end");
    }
    Robot::TakePicture(PictureFile("3-result.png"));
    Robot::Click("buttonClose");
    if (!Robot::WaitForShown("buttonStartD")) {
        return fault("nobody asks what is to become of the gas");
    }
    Robot::TakePicture(PictureFile("4-follow-up.png"));
    Robot::Click("buttonStartD");
    if (!Robot::WaitFor([] { return jobSTM.GetType() == JobStateMachine::TYPE_D; }, pumpBackLimitMs)
        || !Robot::WaitForShown("startMea", pumpBackLimitMs)) {
        return fault("the gas isn't pumped back");
    }
    Robot::TakePicture(PictureFile("5-pumped-back.png"));
    return true;
}

bool Report(int storedBefore)
{
    RR::List<RR::FileInfo> files = StoredFiles();
    if (files.GetCount() != storedBefore + 1) {
        return fault("no measurement was stored");
    }
    const RR::String path = files.Last().Entry().pathFile;
    Mea mea;
    const Mea::LoadState state = mea.Load(RR::PATH_GetFile(path));
    std::printf("Verdict: %s\nFile:    %s (%s)\n", mea.result == Mea::PASSED ? "passed" : mea.result == Mea::FAILED ? "failed" : "none",
        Board::Locate(path).c_str(), state == Mea::ACCEPTED ? "accepted" : "not accepted");
    return state == Mea::ACCEPTED;
}

int Measure()
{
    const int storedBefore = StoredFiles().GetCount();
    const bool ok = TakeMeasurement() && Report(storedBefore);
    Robot::Click("shutdown");
    Robot::Click("buttonSkip");
    return ok ? 0 : 1;
}

const Robot::Scenario scenario(Measure);

}
