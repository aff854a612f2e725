#include "platform/qt/Language.h"

#include <QCoreApplication>
#include <QDir>
#include <QLibraryInfo>
#include <QLocale>

namespace petal {

namespace {

QString prefix() { return QStringLiteral(":/i18n/petalgarden_"); }

// "ja_JP.UTF-8", "ja:en" or "ja_JP@x" to "ja"; "C" and "POSIX" are English.
QString codeOf(const QString& locale) {
    QString code = locale.section(QLatin1Char(':'), 0, 0);
    code = code.section(QLatin1Char('.'), 0, 0).section(QLatin1Char('@'), 0, 0).section(QLatin1Char('_'), 0, 0);
    return code == QLatin1String("C") || code == QLatin1String("POSIX") ? QStringLiteral("en") : code.toLower();
}

}  // namespace

QString Language::fromEnvironment() {
    for (const char* name : {"LANGUAGE", "LC_ALL", "LC_MESSAGES", "LANG"}) {
        const QString value = qEnvironmentVariable(name);
        if (value.isEmpty()) continue;
        const QString code = codeOf(value);
        return available().contains(code) ? code : QStringLiteral("en");
    }
    return QStringLiteral("en");
}

QStringList Language::available() {
    QStringList codes{QStringLiteral("en")};
    for (const QString& file : QDir(QStringLiteral(":/i18n")).entryList({QStringLiteral("petalgarden_*.qm")}, QDir::Files, QDir::Name))
        codes << file.mid(12).chopped(3);
    return codes;
}

QString Language::nativeName(const QString& code) {
    const QString name = QLocale(code).nativeLanguageName();
    return code == QLatin1String("en") ? QStringLiteral("English") : name;
}

QString Language::apply(const QString& choice) {
    const QString code = choice == QLatin1String("system") || !available().contains(choice) ? fromEnvironment() : choice;
    QCoreApplication::removeTranslator(&ours_);
    QCoreApplication::removeTranslator(&qt_);
    code_ = code;
    choice_ = available().contains(choice) ? choice : QStringLiteral("system");
    QLocale::setDefault(QLocale(code == QLatin1String("en") ? QStringLiteral("en_US") : code));
    if (code == QLatin1String("en")) return code_;
    if (ours_.load(prefix() + code + QStringLiteral(".qm"))) QCoreApplication::installTranslator(&ours_);
    // Qt's own words: the buttons of the message boxes, the menus of a text box.
    if (qt_.load(QStringLiteral("qtbase_") + code, QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(&qt_);
    return code_;
}

QString Language::core(const std::string& text) {
    return QCoreApplication::translate("core", text.c_str());
}

QString Language::cardName(std::string_view tag) {
    const std::string key(tag);
    const QString name = QCoreApplication::translate("card", key.c_str());
    return name == QString::fromStdString(key) ? name.section(QLatin1Char('/'), 0, 0) : name;
}

}  // namespace petal
