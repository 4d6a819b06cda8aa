#include "Desktop/Words/Languages.h"

#include <QApplication>
#include <QEvent>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>
#include <QWidget>

#include <algorithm>

/// Resources of a static library are there only for those who ask for them, and only from outside every namespace.
static void LoadResources()
{
    Q_INIT_RESOURCE(korvex_translations);
}

namespace Korvex::Desktop
{

namespace
{

char const* const ENGLISH = "en";

/// What the user's system says about numbers and dates, where it speaks the same language.
QLocale ChooseLocale(QString const& code)
{
    QLocale const wanted(code);
    QLocale const system = QLocale::system();
    return system.language() == wanted.language() && system.script() == wanted.script() ? system : wanted;
}

/// Widgets ask only when they are made how numbers are written.
void UseLocale(QLocale const& locale)
{
    QLocale::setDefault(locale);
    for (QWidget* window : QApplication::topLevelWidgets())
        window->setLocale(locale);
}

} // namespace

/// Both translations as one, so that a switch is one event and not four.
class Languages::Translator final : public QTranslator
{
public:
    void Load(QString const& code)
    {
        static_cast<void>(m_own.load(QStringLiteral(":/korvex/translations/korvex_") + code));
        // The toolkit's own texts are English without a translation.
        static_cast<void>(
            m_toolkit.load(QStringLiteral("qtbase_") + code, QLibraryInfo::location(QLibraryInfo::TranslationsPath)));
        m_code = code;
    }

    [[nodiscard]] QString GetCode() const { return m_code; }

    [[nodiscard]] bool isEmpty() const override { return false; }

    [[nodiscard]] QString translate(char const* context, char const* sourceText, char const* disambiguation,
                                    int number) const override
    {
        QString const text = m_own.translate(context, sourceText, disambiguation, number);
        return text.isNull() ? m_toolkit.translate(context, sourceText, disambiguation, number) : text;
    }

private:
    QString m_code;
    QTranslator m_own;
    QTranslator m_toolkit;
};

Languages::Languages() : m_translator(std::make_unique<Translator>())
{
    LoadResources();
    UseLocale(ChooseLocale(QLatin1String(ENGLISH)));
    m_translator->Load(QLatin1String(ENGLISH));
    QCoreApplication::installTranslator(m_translator.get());
}

Languages::~Languages() = default;

std::vector<Language> const& Languages::List()
{
    static std::vector<Language> const LANGUAGES = {
        {QStringLiteral("en"), QStringLiteral("English")},
        {QStringLiteral("de"), QStringLiteral("Deutsch")},
        {QStringLiteral("es"), QStringLiteral("Espa\u00F1ol")},
        {QStringLiteral("fr"), QStringLiteral("Fran\u00E7ais")},
        {QStringLiteral("ja"), QStringLiteral("\u65E5\u672C\u8A9E")},
        {QStringLiteral("pl"), QStringLiteral("Polski")},
        {QStringLiteral("ru"), QStringLiteral("\u0420\u0443\u0441\u0441\u043A\u0438\u0439")},
        {QStringLiteral("uk"), QStringLiteral("\u0423\u043A\u0440\u0430\u0457\u043D\u0441\u044C\u043A\u0430")},
        {QStringLiteral("zh_CN"), QStringLiteral("\u7B80\u4F53\u4E2D\u6587")},
    };
    return LANGUAGES;
}

QString Languages::FindSystemLanguage()
{
    for (QString const& name : QLocale::system().uiLanguages())
    {
        QLocale const wanted(name);
        auto const found =
            std::find_if(List().begin(), List().end(),
                         [&wanted](Language const& language)
                         {
                             QLocale const offered(language.code);
                             return offered.language() == wanted.language() && offered.script() == wanted.script();
                         });
        if (found != List().end())
            return found->code;
    }
    return QLatin1String(ENGLISH);
}

void Languages::Switch(QString const& code)
{
    bool const isListed =
        std::any_of(List().begin(), List().end(), [&code](Language const& language) { return language.code == code; });
    QString const chosen = isListed ? code : QString(QLatin1String(ENGLISH));
    if (chosen == GetCurrent())
        return;
    UseLocale(ChooseLocale(chosen));
    m_translator->Load(chosen);
    QEvent event(QEvent::LanguageChange);
    QCoreApplication::sendEvent(QCoreApplication::instance(), &event);
}

QString Languages::GetCurrent() const
{
    return m_translator->GetCode();
}

} // namespace Korvex::Desktop
