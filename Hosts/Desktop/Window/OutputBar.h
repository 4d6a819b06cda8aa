#pragma once

#include "Desktop/Films/OutputSettings.h"

#include "Gui/KFrame.h"

#include <chrono>
#include <memory>
#include <optional>

namespace Korvex::Desktop
{

/// What is being converted, over all films.
struct ConversionSummary
{
    double fraction = 0.0; ///< 0..1
    std::optional<std::chrono::seconds> remaining;
    bool isPaused = false;
};

/// What becomes of all films: format, quality, where the outputs go, and the buttons that start, pause and stop. A
/// passive view: it shows what it is told and says what the user asks for. GUI thread.
class OutputBar final : public KFrame
{
    Q_OBJECT
public:
    explicit OutputBar(QWidget* parent = nullptr);
    ~OutputBar() override;

    /// Emits nothing.
    void ShowSettings(OutputSettings const& settings);
    [[nodiscard]] OutputSettings const& GetSettings() const;
    /// Whether there is anything to convert: any film, and the chosen one.
    void SetConvertible(bool isAnyFilm, bool isChosenFilm);
    /// None: nothing is being converted.
    void ShowConversion(std::optional<ConversionSummary> const& summary);

    /// As narrow as two rows can be.
    [[nodiscard]] QSize minimumSizeHint() const override;

Q_SIGNALS:
    /// By the user.
    void SettingsChanged(Korvex::Desktop::OutputSettings const& settings);
    void ConvertAllRequested();
    void ConvertCurrentRequested();
    /// The state that the user wants.
    void PauseToggled(bool isPaused);
    /// Everything that waits or runs.
    void CancelRequested();

protected:
    void changeEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    class Impl;
    std::unique_ptr<Impl> m_impl;
};

} // namespace Korvex::Desktop
