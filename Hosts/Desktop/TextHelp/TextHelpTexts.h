#pragma once

#include <QCoreApplication>
#include <QString>

#include <string>

namespace Korvex::Proc
{
struct FontStandIn;
struct TextDecodeReport;
struct TextSample;
} // namespace Korvex::Proc

namespace Korvex::Desktop
{

/// What TextHelpView says, in words, in the present language.
class TextHelpTexts
{
    Q_DECLARE_TR_FUNCTIONS(Korvex::Desktop::TextHelpTexts)
public:
    /// The name that the list of encodings shows; the core's own for one that is not in it.
    static QString NameEncoding(std::string const& encoding);
    /// "Detected: Windows-1251 (very sure, 98 %)."
    static QString DescribeDetection(Proc::TextSample const& sample);
    static QString DescribeReplacedBytes(Proc::TextDecodeReport const& report);
    static QString DescribeMissingFont(std::string const& family, std::string const& standIn);
    /// "DejaVu Sans" lacks 214 characters of this text (Japanese): "Noto Sans CJK JP" stands in.
    static QString DescribeStandIn(std::string const& family, Proc::FontStandIn const& standIn);
    static QString DescribeUnavailable(std::u32string const& characters);

private:
    /// What script most of them are, else some of them.
    static QString NameLetters(std::u32string const& characters);
};

} // namespace Korvex::Desktop
