#include "Cues.h"

#include "Core/FileSystem.h"
#include "Support/Environment.h"

#include <gmock/gmock.h>

#include <cstdlib>
#include <map>
#include <sstream>

namespace Korvex::Proc::Text
{
namespace
{

/// One row of the corpus's list of files.
struct Row
{
    std::map<std::string, std::string> fields;

    std::string const& operator[](std::string const& name) const { return fields.at(name); }
    [[nodiscard]] long Cues() const { return fields.at("cues").empty() ? -1 : std::stol(fields.at("cues")); }
};

std::vector<std::string> Split(std::string const& text, char separator)
{
    std::vector<std::string> parts(1);
    for (char const letter : text)
        letter == separator ? static_cast<void>(parts.emplace_back()) : parts.back().push_back(letter);
    return parts;
}

class TextCorpusTest : public testing::Test
{
protected:
    void SetUp() override
    {
        char const* const folder = std::getenv("KORVEX_TEST_CORPUS");
        if (folder == nullptr)
        {
            GTEST_SKIP() << "KORVEX_TEST_CORPUS is not set";
        }
        m_folder = ioPath(folder);
        auto const manifest = Core::ReadFile(m_folder / "MANIFEST.tsv", 1 << 24);
        ASSERT_TRUE(manifest);
        auto const lines = Split(*manifest, '\n');
        auto const names = Split(lines[0], '\t');
        for (std::size_t i = 1; i < lines.size(); ++i)
        {
            auto const values = Split(lines[i], '\t');
            Row row;
            for (std::size_t column = 0; column < names.size() && column < values.size(); ++column)
                row.fields[names[column]] = values[column];
            if (values.size() >= names.size() - 1)
            {
                m_rows.push_back(std::move(row));
            }
        }
        ASSERT_GT(m_rows.size(), 50u);
    }

    static bool IsText(Row const& row)
    {
        return row["format"] == "srt" || row["format"] == "ass" || row["format"] == "ssa" || row["format"] == "smi";
    }
    Testing::ScopedVariable const m_locale{"LC_ALL", "C"};
    ioPath m_folder;
    std::vector<Row> m_rows;
};

TEST_F(TextCorpusTest, EveryTextFileIsReadWholeAndNoOther)
{
    // A script's version is told from its styles, so "ass" and "ssa" may change places.
    std::map<std::string, std::string> const codecs = {
        {"srt", "subrip"}, {"smi", "sami"}, {"ass", "ass"}, {"ssa", "ass"}};
    for (Row const& row : m_rows)
    {
        SCOPED_TRACE(row["path"]);
        auto const loaded = LoadTextFile(m_folder / row["path"], {});
        ASSERT_TRUE(loaded);
        ASSERT_EQ(loaded->has_value(), IsText(row));
        if (!IsText(row))
            continue;
        TextDocument const& document = **loaded;
        EXPECT_EQ(document.codecId == "ssa" ? "ass" : document.codecId, codecs.at(row["format"]));
        auto const found = static_cast<long>(document.cues.size());
        auto const accounted = static_cast<long>(document.cues.size() + document.skippedCues);
        bool const isDamaged = row["encoding"].find('(') != std::string::npos || row["path"].find("malformed/") == 0;
        if (row.Cues() < 0)
            continue;
        if (row["format"] == "smi")
        {
            // The list counts the cues of all classes; here one class is read.
            EXPECT_TRUE(found <= row.Cues() && found * 3 >= row.Cues());
        }
        else if (!isDamaged)
        {
            EXPECT_EQ(found, row.Cues());
            EXPECT_EQ(document.decoding.replacedBytes, 0u);
        }
        else
        {
            // The plain counter also counts times without text, which are no cues, and stops at damaged times.
            long const textless = row["format"] == "srt" ? row.Cues() - accounted : 0;
            EXPECT_LE(textless, 5);
            EXPECT_TRUE(accounted >= row.Cues() || textless > 0) << accounted << " of " << row.Cues();
        }
    }
}

TEST_F(TextCorpusTest, EncodingsAreDetectedAndDecoded)
{
    auto const squeeze = [](std::string const& text)
    {
        std::istringstream words(text);
        std::string result;
        for (std::string word; words >> word;)
            result += (result.empty() ? "" : " ") + word;
        return result;
    };
    int samples = 0;
    std::vector<std::string> wrong;
    for (Row const& row : m_rows)
    {
        if (row["path"].find("encodings/") != 0 || !IsText(row))
            continue;
        bool const isOffered = row["path"].find("outside_list") == std::string::npos;
        auto const stated = LoadTextFile(m_folder / row["path"], isOffered ? row["encoding"] : std::string());
        auto const loaded = LoadTextFile(m_folder / row["path"], {});
        if (isOffered && stated && *stated && !(*stated)->cues.empty())
        {
            EXPECT_EQ(squeeze((*stated)->cues[0].text), squeeze(row["first_cue_utf8"])) << row["path"];
        }
        if (!loaded || !*loaded)
            continue;
        auto accepted = Split(row["same_text_also_as"], ',');
        accepted.push_back(row["encoding"]);
        std::string const& found = (*loaded)->decoding.encoding;
        ++samples;
        if (std::find(accepted.begin(), accepted.end(), found) == accepted.end())
            wrong.push_back(row["path"] + " as " + found);
    }
    EXPECT_GE(samples, 20);
    EXPECT_LE(wrong.size() * 39, static_cast<std::size_t>(samples)) << testing::PrintToString(wrong);
}

} // namespace
} // namespace Korvex::Proc::Text
