#pragma once

#include "Gui/KFrame.h"

#include <chrono>
#include <memory>

namespace Korvex::Desktop
{

class Film;

/// The film's real picture at the slider's position with the subtitle drawn in as the conversion draws it, the slider,
/// the strip of cues under it and the buttons to the previous and next cue. Decoding and drawing run on a thread of
/// their own; requests that a newer one has overtaken are dropped. GUI thread.
class PreviewPane final : public KFrame
{
    Q_OBJECT
public:
    explicit PreviewPane(QWidget* parent = nullptr);
    ~PreviewPane() override;

    /// Follows every change of this film from now on; null: nothing is shown. The film may go while it is shown.
    void ShowFilm(Film* film);
    [[nodiscard]] std::chrono::microseconds GetTime() const;
    void SetTime(std::chrono::microseconds time);
    /// The picture that is shown, in output geometry; null before the first one.
    [[nodiscard]] QImage GetPicture() const;

Q_SIGNALS:
    /// A picture for the newest request is on the screen.
    void PictureShown();

protected:
    void changeEvent(QEvent* event) override;

private:
    class Impl;
    std::unique_ptr<Impl> m_impl;
};

} // namespace Korvex::Desktop
