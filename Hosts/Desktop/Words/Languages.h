#pragma once

#include <QString>

#include <memory>
#include <vector>

namespace Korvex::Desktop
{

struct Language
{
    QString code; ///< of its translation: "de", "zh_CN"
    QString name; ///< as its speakers write it
};

/// Translates the application: the program's own texts and those of the toolkit. English until `Switch` says otherwise.
/// One object, made after the application object. GUI thread.
class Languages
{
public:
    Languages();
    ~Languages();

    /// English first, then by code.
    [[nodiscard]] static std::vector<Language> const& List();
    /// The code of the first language that the user's system prefers and that the program has; else "en".
    [[nodiscard]] static QString FindSystemLanguage();

    /// Every widget gets one LanguageChange event, from the event loop. Numbers and dates follow. A code that is not in
    /// the list means English.
    void Switch(QString const& code);
    [[nodiscard]] QString GetCurrent() const;

private:
    class Translator;
    std::unique_ptr<Translator> m_translator;
};

} // namespace Korvex::Desktop
