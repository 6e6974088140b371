#include "Gallery.h"

#include "FitCheck.h"
#include "Globals.h"
#include "Panel.h"
#include "Robot.h"
#include "Settings.h"
#include "WndMain.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QPainter>
#include <QScreen>
#include <QTextStream>
#include <QWidget>
#include <cstdio>

namespace {

/// German, and what has a translation.
QStringList languages = {"DE", "BR", "CN", "CZ", "ES", "FI", "FR", "IT", "JP", "KR", "PL", "RU", "UK", "US", "VN"};
/// The instrument's font covers these whole; a PC may lack the fonts that fill in for the others.
const QStringList coveredLanguages = {"DE", "UK"};

QString outFolder = QStringLiteral("out/gallery");

/// The dialog where it stands on the screen, the main window behind it and what has popped up above it.
void SavePicture(QWidget& dialog, const QString& file)
{
    QImage picture(dialog.screen()->size(), QImage::Format_RGB32);
    picture.fill(QColor(120, 130, 140));
    QPainter painter(&picture);
    if (wndMain && wndMain != &dialog) {
        painter.drawPixmap(wndMain->pos(), wndMain->grab());
    }
    painter.drawPixmap(dialog.pos(), dialog.grab());
    if (QWidget* popup = QApplication::activePopupWidget()) {
        painter.drawPixmap(popup->pos(), popup->grab());
    }
    painter.end();
    picture.save(file);
}

/// Opens one dialog, takes its picture and closes it and what comes after it. Gives the number of its faults.
int ShowExhibit(const Gallery::Exhibit& exhibit, const QString& language)
{
    const QString name = QStringLiteral("%1-%2").arg(QLatin1String(exhibit.name), language);
    const Robot::Running running = Robot::Start(exhibit.show);
    const auto isOpen = [] { return QApplication::activeModalWidget() != nullptr; };
    if (!Robot::WaitFor(isOpen)) {
        std::printf("%s: does not open\n", qPrintable(name));
        return 1;
    }
    QStringList faults;
    if (exhibit.prepare && !exhibit.prepare()) {
        faults.append(QStringLiteral("does not come into its state"));
    }
    Robot::OnGui([&] {
        QWidget* dialog = QApplication::activeModalWidget();
        if (!dialog) {
            faults.append(QStringLiteral("closed before its picture was taken"));
            return;
        }
        SavePicture(*dialog, QStringLiteral("%1/%2.png").arg(outFolder, name));
        faults.append(FitCheck::Faults(*dialog, exhibit.content == Gallery::EXTREME));
        if (coveredLanguages.contains(language)) {
            faults.append(FitCheck::UncoveredTexts(*dialog));
        }
    });
    if (exhibit.leave) {
        exhibit.leave();
    }
    while (!running.HasEnded()) {
        Robot::OnGui([] {
            if (QWidget* dialog = QApplication::activeModalWidget()) {
                dialog->close();
            }
        });
    }
    for (const QString& fault : faults) {
        std::printf("%s: %s\n", qPrintable(name), qPrintable(fault));
    }
    return static_cast<int>(faults.size());
}

void WriteIndex(const std::vector<Gallery::Exhibit>& exhibits, const QStringList& shown)
{
    QFile file(outFolder + QStringLiteral("/index.html"));
    if (!file.open(QIODevice::WriteOnly)) {
        return;
    }
    QTextStream page(&file);
    page << "<!DOCTYPE html><meta charset=\"utf-8\"><title>ZARN: gallery</title>\n<table>\n";
    for (const Gallery::Exhibit& exhibit : exhibits) {
        page << "<tr><th>" << exhibit.name << "</th>";
        for (const QString& language : shown) {
            page << "<td>" << language << "<br><img width=\"400\" src=\"" << exhibit.name << '-' << language << ".png\"></td>";
        }
        page << "</tr>\n";
    }
    page << "</table>\n";
}

int ShowAll()
{
    std::vector<Gallery::Exhibit> exhibits = Gallery::Exhibits();
    for (const auto& more : {Gallery::ProcessExhibits(), Gallery::WindowExhibits()}) {
        exhibits.insert(exhibits.end(), more.begin(), more.end());
    }
    QStringList shown;
    int faults = 0;
    for (const QString& language : languages) {
        const LangCC code(language.toLatin1().constData());
        bool selected = false;
        Robot::OnGui([&] { selected = HasLanguage(code) && SelectLanguage(code); });
        if (!selected) {
            continue;
        }
        shown.append(language);
        for (const Gallery::Exhibit& exhibit : exhibits) {
            faults += ShowExhibit(exhibit, shown.last());
        }
    }
    WriteIndex(exhibits, shown);
    std::printf("gallery: %zu states in %d languages, %d faults, see %s/index.html\n", exhibits.size(),
                static_cast<int>(shown.size()), faults, qPrintable(outFolder));
    return faults == 0 ? 0 : 1;
}

Robot::Scenario gallery(ShowAll);

}

namespace Gallery {

QString Said(const char* german, const char* english)
{
    return QString::fromUtf8(settings.applLanguage == LangCC("UK") ? english : german);
}

}

/// usage: zarn-gallery [FOLDER [LANGUAGE...]]
int main(int argc, char** argv)
{
    Panel::ChooseScreen();
    QApplication application(argc, argv);
    if (argc > 1) {
        outFolder = QString::fromLocal8Bit(argv[1]);
    }
    if (argc > 2) {
        languages = application.arguments().sliced(2);
    }
    QDir().mkpath(outFolder);
    Panel::Dress();
    QApplication::setQuitOnLastWindowClosed(false);
    return QApplication::exec();
}
