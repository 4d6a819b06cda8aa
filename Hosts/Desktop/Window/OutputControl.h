#pragma once

#include <QObject>

namespace Korvex::Desktop
{

class Actions;
class ConversionControl;
class ConversionQueue;
class FilmList;
class FilmListPane;
class OutputBar;

/// Keeps the output bar and the films' output settings alike, shows in it how the conversions go, and lets its buttons
/// do what the actions do. GUI thread.
class OutputControl final : public QObject
{
    Q_OBJECT
public:
    /// All have to outlive it.
    struct Parts
    {
        FilmList& films;
        FilmListPane& pane;
        ConversionQueue& queue;
        ConversionControl& control;
        Actions const& actions;
        OutputBar& bar;
    };

    explicit OutputControl(Parts const& parts, QObject* parent = nullptr);
    ~OutputControl() override;

private:
    void UpdateConvertible();
    void UpdateConversion();

    Parts m_parts;
};

} // namespace Korvex::Desktop
