#include "Desktop/Words/Languages.h"

#include <QDir>
#include <QFile>
#include <QMap>
#include <QProcess>
#include <QRegularExpression>
#include <QStringList>
#include <QTemporaryDir>
#include <QXmlStreamReader>

namespace Korvex::Desktop
{
namespace
{

struct Message
{
    QString source;
    bool isNumerus = false;
    QStringList texts; ///< the translation, or its plural forms
};

/// By context, source and comment.
using Messages = QMap<QString, Message>;

QStringList ReadTexts(QXmlStreamReader& xml, bool isNumerus)
{
    QStringList texts;
    if (!isNumerus)
        return {xml.readElementText()};
    while (xml.readNextStartElement())
        texts.append(xml.readElementText());
    return texts;
}

Messages ReadFile(QString const& path)
{
    Messages messages;
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << qPrintable(path);
    QXmlStreamReader xml(&file);
    QString context;
    Message message;
    QString comment;
    while (!xml.atEnd())
    {
        xml.readNext();
        QStringRef const name = xml.name();
        if (xml.isStartElement() && name == QLatin1String("name"))
            context = xml.readElementText();
        else if (xml.isStartElement() && name == QLatin1String("message"))
        {
            message = {};
            comment.clear();
            message.isNumerus = xml.attributes().value(QLatin1String("numerus")) == QLatin1String("yes");
        }
        else if (xml.isStartElement() && name == QLatin1String("source"))
            message.source = xml.readElementText();
        else if (xml.isStartElement() && name == QLatin1String("comment"))
            comment = xml.readElementText();
        else if (xml.isStartElement() && name == QLatin1String("translation"))
            message.texts = ReadTexts(xml, message.isNumerus);
        else if (xml.isEndElement() && name == QLatin1String("message"))
            messages.insert(context + " | " + message.source + " | " + comment, message);
    }
    EXPECT_FALSE(xml.hasError()) << qPrintable(path + ": " + xml.errorString());
    return messages;
}

QStringList FindAll(QString const& text, char const* pattern)
{
    QStringList found;
    for (auto matches = QRegularExpression(QLatin1String(pattern)).globalMatch(text); matches.hasNext();)
        found.append(matches.next().captured());
    found.sort();
    return found;
}

/// What a text ends in, alike for all scripts: a full stop, a colon, an ellipsis; else nothing. Of the two ways to
/// write an ellipsis the toolkit takes just one away where a text becomes that of a button.
QString EndOf(QString text)
{
    static QMap<QChar, QString> const SIGNS = {
        {'.', "."},       {u'\u3002', "."}, {':', ":"},       {u'\uFF1A', ":"},      {'?', "?"},
        {u'\uFF1F', "?"}, {'!', "!"},       {u'\uFF01', "!"}, {u'\u2026', "\u2026"},
    };
    text = text.trimmed();
    if (text.endsWith(QLatin1String("...")))
        return "...";
    return text.isEmpty() ? QString() : SIGNS.value(text.back());
}

/// What is wrong with one translation; empty when nothing is.
QString FindFault(QString const& source, QString const& text)
{
    if (text.trimmed().isEmpty())
        return "not translated";
    if (FindAll(source, "%L?[0-9n]") != FindAll(text, "%L?[0-9n]"))
        return "other placeholders";
    if (FindAll(source, "<[^>]+>") != FindAll(text, "<[^>]+>"))
        return "other markup";
    if (FindAll(source, "(?<!&)&(?![&\\s])").size() != FindAll(text, "(?<!&)&(?![&\\s])").size())
        return "another number of mnemonics";
    if (EndOf(source) != EndOf(text))
        return "another sign at the end";
    if (source.startsWith(' ') != text.startsWith(' ') || source.endsWith(' ') != text.endsWith(' '))
        return "other blanks around it";
    return {};
}

class Translations : public testing::TestWithParam<QString>
{
protected:
    /// What the sources say, with an empty translation for each language.
    static void SetUpTestSuite()
    {
        m_extracted = std::make_unique<QTemporaryDir>();
        QProcess process;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("LUPDATE", KORVEX_LUPDATE);
        process.setProcessEnvironment(environment);
        process.start(QStringLiteral(KORVEX_TRANSLATIONS "/update.sh"), {m_extracted->path()});
        ASSERT_TRUE(process.waitForFinished(120'000));
        ASSERT_EQ(process.exitCode(), 0) << process.readAllStandardError().constData();
    }

    static void TearDownTestSuite() { m_extracted.reset(); }

    static std::unique_ptr<QTemporaryDir> m_extracted;
};

std::unique_ptr<QTemporaryDir> Translations::m_extracted;

TEST_P(Translations, HaveEveryTextOfTheSourcesAndNoOther)
{
    QString const name = "/korvex_" + GetParam() + ".ts";
    Messages const wanted = ReadFile(m_extracted->path() + name);
    Messages const present = ReadFile(KORVEX_TRANSLATIONS + name);
    ASSERT_FALSE(wanted.isEmpty());
    for (auto entry = wanted.begin(); entry != wanted.end(); ++entry)
    {
        Message const& message = present.value(entry.key());
        EXPECT_EQ(message.texts.size(), entry->texts.size()) << qPrintable(entry.key());
        for (QString const& text : message.texts)
        {
            QString const fault = FindFault(entry->source, text);
            EXPECT_TRUE(fault.isEmpty()) << qPrintable(fault + ": " + entry.key() + "\n    " + text);
        }
    }
    for (auto entry = present.begin(); entry != present.end(); ++entry)
        EXPECT_TRUE(wanted.contains(entry.key())) << "not in the sources any more: " << qPrintable(entry.key());
}

std::vector<QString> ListCodes()
{
    std::vector<QString> codes;
    for (Language const& language : Languages::List())
        codes.push_back(language.code);
    return codes;
}

INSTANTIATE_TEST_SUITE_P(OfEveryLanguage, Translations, testing::ValuesIn(ListCodes()),
                         [](auto const& language) { return language.param.toStdString(); });

TEST(TranslationFiles, AreThoseThatTheProgramOffers)
{
    std::size_t const files = static_cast<std::size_t>(QDir(KORVEX_TRANSLATIONS).entryList({"korvex_*.ts"}).size());
    EXPECT_EQ(files, Languages::List().size());
}

} // namespace
} // namespace Korvex::Desktop
