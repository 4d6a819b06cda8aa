#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// The words of a command line: what options a command has, and what was given.
namespace Korvex::Cli
{

enum class OptionValue
{
    None,     ///< a switch
    Required, ///< "--name VALUE" or "--name=VALUE"
    Optional, ///< "--name" or "--name=VALUE"
};

enum class Repetition
{
    Once,
    Any,
};

/// One option of a command, with the text that help shows for it.
struct Option
{
    std::string_view name; ///< with its dashes
    OptionValue value = OptionValue::None;
    std::string_view valueName; ///< what help calls the value
    std::string_view help;
    Repetition repetition = Repetition::Once;
};

/// Options under one heading of the help text.
struct OptionGroup
{
    std::string_view title;
    std::vector<Option> options;
};

struct GivenOption
{
    std::string_view name; ///< as in its `Option`
    std::optional<std::string> value;

    [[nodiscard]] std::string const& Value() const { return *value; } ///< of an option whose value is required
};

struct Arguments
{
    std::vector<std::string> inputs;  ///< what is no option, in order
    std::vector<GivenOption> options; ///< in order

    /// The last one given of this name, or null.
    [[nodiscard]] GivenOption const* Find(std::string_view name) const;
};

/// Sorts `words` into options and inputs; "--" ends the options. Throws UsageError.
[[nodiscard]] Arguments ParseArguments(std::vector<std::string> const& words, std::vector<OptionGroup> const& groups);

/// The options as help shows them: a heading for each group, one entry for each option, wrapped.
[[nodiscard]] std::string DescribeOptions(std::vector<OptionGroup> const& groups);

} // namespace Korvex::Cli
