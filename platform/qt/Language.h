#pragma once
// The language the program speaks: English, the words of the sources, or one of the
// translations compiled in as :/i18n/petalgarden_<code>.qm. "system" follows the session's
// locale (LANGUAGE, LC_ALL, LC_MESSAGES, LANG, the first that is set).
#include <QString>
#include <QStringList>
#include <QTranslator>
#include <string>

namespace petal {

class Language {
public:
    // The key of petalgarden-options.ini that keeps the choice.
    static constexpr const char* kOption = "language";

    // The code of the session's language, "en" when it has no translation here.
    static QString fromEnvironment();
    // The codes of the translations compiled in, English first.
    static QStringList available();
    // A language's name in itself ("日本語").
    static QString nativeName(const QString& code);

    // Puts the translations of choice ("system", "en" or a code) in place of those before;
    // widgets are told by Qt's LanguageChange event. Gives the code now spoken.
    QString apply(const QString& choice);
    QString code() const { return code_; }
    QString choice() const { return choice_; }

    // A text the core wrote, marked in the context "core", in the language now spoken.
    static QString core(const std::string& text);
    // The name a player of this language gives the card of a catalogue tag.
    static QString cardName(std::string_view tag);

private:
    QTranslator ours_;
    QTranslator qt_;
    QString code_ = QStringLiteral("en");
    QString choice_ = QStringLiteral("system");
};

}  // namespace petal
