#include "Globals.h"

#include "RRx/RRSkipList.h"
#include "Settings.h"

#include <QCoreApplication>
#include <QDir>
#include <QEvent>

QTranslator translator;

namespace {

const char* const translationsFolder = ":/Trans/Trans";
const LangCC sourceLanguage = "DE";

QString LocaleName(LangCC langCC)
{
    // The codes are those of the flags, so for some languages a country's.
    static constexpr struct {
        char code[3];
        const char* locale;
    } names[] = {{"UK", "en"}, {"US", "en"}, {"JP", "ja"}, {"CN", "zh"},
                 {"CZ", "cs"}, {"BR", "pt"}, {"KR", "ko"}, {"VN", "vi"}};
    for (const auto& name : names) {
        if (langCC == name.code) {
            return QLatin1String(name.locale);
        }
    }
    return QString::fromLatin1(langCC.ToStr()).toLower();
}

void PostLanguageChange()
{
    if (QCoreApplication::instance() && wndMain) {
        QCoreApplication::postEvent(WndMainObject(), new QEvent(QEvent::LanguageChange));
    }
}

}

QLocale GetLocal()
{
    static LangCC lastSeen = "-";
    static QLocale locale("de");
    if (settings.applLanguage != lastSeen) {
        lastSeen = settings.applLanguage;
        locale = QLocale(LocaleName(lastSeen));
    }
    return locale;
}

bool SelectLanguage(LangCC langCC)
{
    if (langCC == sourceLanguage) {
        // Leaves the translator empty; installing it then tells nobody.
        (void)translator.load(QString());
        PostLanguageChange();
    } else {
        const QString file = QStringLiteral("trans%1.qm").arg(QString::fromLatin1(langCC.ToStr()));
        if (!translator.load(file, QLatin1String(translationsFolder))) {
            RR::Log("[Application] Invalid translation \"%s\"\n", file.toLatin1().constData());
            return false;
        }
    }
    if (QCoreApplication::instance()) {
        // Each installation adds an entry to the application's list, so the former one goes first.
        QCoreApplication::removeTranslator(&translator);
        QCoreApplication::installTranslator(&translator);
    }
    settings.applLanguage = langCC;
    RR::Log("[ZARN] Language set: %s\n", QLocale::languageToString(GetLocal().language()).toLatin1().constData());
    return true;
}

bool HasLanguage(LangCC langCC)
{
    static const RR::SkipList<LangCC, char> available = [] {
        RR::SkipList<LangCC, char> list;
        list.InsertUnique(sourceLanguage);
        const QStringList files = QDir(QLatin1String(translationsFolder)).entryList({QStringLiteral("trans*.qm")});
        for (const QString& file : files) {
            const LangCC code(file.mid(5, 2).toLatin1().constData());
            list.InsertUnique(code);
            RR::Log("[ZARN] Translation %s available\n", code.ToStr());
        }
        return list;
    }();
    return available.Contains(langCC);
}
