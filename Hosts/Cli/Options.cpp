#include "Cli/Options.h"

#include "Cli/Console.h"

#include <algorithm>

namespace Korvex::Cli
{

namespace
{

constexpr std::size_t HELP_COLUMN = 28;
constexpr std::size_t HELP_WIDTH = 80;

Option const* FindOption(std::vector<OptionGroup> const& groups, std::string_view name)
{
    for (OptionGroup const& group : groups)
        for (Option const& option : group.options)
            if (option.name == name)
                return &option;
    return nullptr;
}

bool LooksLikeOption(std::string const& word)
{
    return word.size() > 1 && word[0] == '-' && (word.size() < 2 || !(word[1] >= '0' && word[1] <= '9'));
}

std::string Synopsis(Option const& option)
{
    std::string text(option.name);
    if (option.value == OptionValue::Required)
        text.append(" ").append(option.valueName);
    else if (option.value == OptionValue::Optional)
        text.append("[=").append(option.valueName).append("]");
    return text;
}

/// Appends `text` word by word, from `column` on, breaking before the width is exceeded.
void AppendWrapped(std::string& target, std::string_view text, std::size_t indent)
{
    std::size_t column = indent;
    bool isFirst = true;
    while (!text.empty())
    {
        std::string_view const word = text.substr(0, text.find(' '));
        text.remove_prefix(std::min(text.size(), word.size() + 1));
        if (!isFirst && column + 1 + word.size() > HELP_WIDTH)
        {
            target.append("\n").append(indent, ' ');
            column = indent;
        }
        else if (!isFirst)
        {
            target.append(" ");
            ++column;
        }
        target.append(word);
        column += word.size();
        isFirst = false;
    }
    target.append("\n");
}

/// Reads the words one after the other.
class Parser
{
public:
    Parser(std::vector<std::string> const& words, std::vector<OptionGroup> const& groups)
        : m_words(words),
          m_groups(groups)
    {
    }

    Arguments Parse()
    {
        bool isOptionsEnded = false;
        for (m_position = 0; m_position < m_words.size(); ++m_position)
        {
            std::string const& word = m_words[m_position];
            if (!isOptionsEnded && word == "--")
                isOptionsEnded = true;
            else if (!isOptionsEnded && LooksLikeOption(word))
                TakeOption(word);
            else
                m_arguments.inputs.push_back(word);
        }
        return std::move(m_arguments);
    }

private:
    void TakeOption(std::string const& word)
    {
        std::size_t const equals = word.rfind("--", 0) == 0 ? word.find('=') : std::string::npos;
        std::string const name = word.substr(0, equals);
        Option const* option = FindOption(m_groups, name);
        if (option == nullptr)
            throw UsageError("The option " + name + " does not exist here.");
        if (option->repetition == Repetition::Once && m_arguments.Find(option->name) != nullptr)
            throw UsageError("The option " + name + " was given more than once.");

        std::optional<std::string> value;
        if (equals != std::string::npos)
            value = word.substr(equals + 1);
        if (value && option->value == OptionValue::None)
            throw UsageError("The option " + name + " takes no value.");
        if (!value && option->value == OptionValue::Required)
            value = TakeNextWord(*option);
        if (value && value->empty())
            throw UsageError("The option " + name + " needs a value: " + Synopsis(*option) + ".");
        m_arguments.options.push_back({option->name, std::move(value)});
    }

    std::string TakeNextWord(Option const& option)
    {
        if (m_position + 1 >= m_words.size() || m_words[m_position + 1].rfind("--", 0) == 0)
            throw UsageError("The option " + std::string(option.name) + " needs a value: " + Synopsis(option) + ".");
        return m_words[++m_position];
    }

    std::vector<std::string> const& m_words;
    std::vector<OptionGroup> const& m_groups;
    std::size_t m_position = 0;
    Arguments m_arguments;
};

} // namespace

GivenOption const* Arguments::Find(std::string_view name) const
{
    auto const found =
        std::find_if(options.rbegin(), options.rend(), [&](GivenOption const& option) { return option.name == name; });
    return found == options.rend() ? nullptr : &*found;
}

Arguments ParseArguments(std::vector<std::string> const& words, std::vector<OptionGroup> const& groups)
{
    return Parser(words, groups).Parse();
}

std::string DescribeOptions(std::vector<OptionGroup> const& groups)
{
    std::string text;
    for (OptionGroup const& group : groups)
    {
        text.append("\n").append(group.title).append(":\n");
        for (Option const& option : group.options)
        {
            std::string entry = "  " + Synopsis(option);
            if (entry.size() + 2 > HELP_COLUMN)
                entry.append("\n").append(HELP_COLUMN, ' ');
            else
                entry.append(HELP_COLUMN - entry.size(), ' ');
            text.append(entry);
            AppendWrapped(text, option.help, HELP_COLUMN);
        }
    }
    return text;
}

} // namespace Korvex::Cli
