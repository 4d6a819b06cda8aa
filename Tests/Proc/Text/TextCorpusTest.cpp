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
    {
        letter == separator ? static_cast<void>(parts.emplace_back()) : parts.back().push_back(letter);
    }
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
            {
                row.fields[names[column]] = values[column];
            }
            if (values.size() >= names.size() - 1)
            {
                m_rows.push_back(std::move(row));
            }
        }
        ASSERT_GT(m_rows.size(), 50u);
    }

    [[nodiscard]] Core::Result<std::optional<TextDocument>> Load(Row const& row, std::string const& encoding = {}) const
    {
        return LoadTextFile(m_folder / row["path"], encoding);
    }

    static bool IsText(Row const& row)
    {
        return row["format"] == "srt" || row["format"] == "ass" || row["format"] == "ssa" || row["format"] == "smi";
    }
    static bool IsDamaged(Row const& row)
    {
        return row["encoding"].find('(') != std::string::npos || row["path"].find("malformed/") == 0;
    }

    Testing::ScopedVariable const m_locale{"LC_ALL", "C"};
    ioPath m_folder;
    std::vector<Row> m_rows;
};

TEST_F(TextCorpusTest, EveryTextFileIsReadAndNoOther)
{
    for (Row const& row : m_rows)
    {
        auto const loaded = Load(row);
        ASSERT_TRUE(loaded) << row["path"];
        EXPECT_EQ(loaded->has_value(), IsText(row)) << row["path"];
        if (*loaded && IsText(row))
        {
            // A script's version is told from its styles, so "ass" and "ssa" may change places.
            std::map<std::string, std::string> const codecs = {
                {"srt", "subrip"}, {"smi", "sami"}, {"ass", "ass"}, {"ssa", "ass"}};
            std::string const codec = (*loaded)->codecId == "ssa" ? "ass" : (*loaded)->codecId;
            EXPECT_EQ(codec, codecs.at(row["format"])) << row["path"];
        }
    }
}

TEST_F(TextCorpusTest, NoCueIsLost)
{
    for (Row const& row : m_rows)
    {
        auto const loaded = Load(row);
        if (!IsText(row) || !loaded || !*loaded || row.Cues() < 0)
        {
            continue;
        }
        TextDocument const& document = **loaded;
        auto const found = static_cast<long>(document.cues.size());
        auto const accounted = static_cast<long>(document.cues.size() + document.skippedCues);
        if (row["format"] == "smi")
        {
            // The list counts the cues of all classes; here one class is read.
            EXPECT_LE(found, row.Cues()) << row["path"];
            EXPECT_GE(found * 3, row.Cues()) << row["path"];
        }
        else if (!IsDamaged(row))
        {
            EXPECT_EQ(found, row.Cues()) << row["path"];
            EXPECT_EQ(document.decoding.replacedBytes, 0u) << row["path"];
        }
        else
        {
            // The plain counter also counts times without text, which are no cues, and stops at damaged times.
            long const textless = row["format"] == "srt" ? row.Cues() - accounted : 0;
            EXPECT_LE(textless, 5) << row["path"];
            EXPECT_TRUE(accounted >= row.Cues() || textless > 0)
                << row["path"] << ": " << accounted << " of " << row.Cues();
        }
    }
}

TEST_F(TextCorpusTest, FirstCueReadsAsListed)
{
    auto const squeeze = [](std::string const& text)
    {
        std::istringstream words(text);
        std::string result;
        for (std::string word; words >> word;)
        {
            result += (result.empty() ? "" : " ") + word;
        }
        return result;
    };
    for (Row const& row : m_rows)
    {
        bool const isComparable =
            row["path"].find("encodings/") == 0 && row["path"].find("outside_list") == std::string::npos;
        auto const loaded = isComparable ? Load(row, row["encoding"]) : Load(row);
        if (isComparable && IsText(row) && loaded && *loaded && !(*loaded)->cues.empty())
        {
            EXPECT_EQ(squeeze((*loaded)->cues[0].text), squeeze(row["first_cue_utf8"])) << row["path"];
        }
    }
}

TEST_F(TextCorpusTest, EncodingsAreDetected)
{
    int samples = 0;
    std::vector<std::string> wrong;
    for (Row const& row : m_rows)
    {
        bool const isSample = row["path"].find("encodings/") == 0 && IsText(row);
        auto const loaded = Load(row);
        if (!isSample || !loaded || !*loaded)
        {
            continue;
        }
        auto accepted = Split(row["same_text_also_as"], ',');
        accepted.push_back(row["encoding"]);
        std::string const& found = (*loaded)->decoding.encoding;
        RecordProperty(row["path"], found);
        ++samples;
        if (std::find(accepted.begin(), accepted.end(), found) == accepted.end())
        {
            wrong.push_back(row["path"] + " as " + found);
        }
    }
    EXPECT_GE(samples, 20);
    EXPECT_LE(wrong.size() * 39, static_cast<std::size_t>(samples)) << testing::PrintToString(wrong);
}

} // namespace
} // namespace Korvex::Proc::Text
