#pragma once

#include "Gui/KFrame.h"

#include <memory>

namespace Korvex::Desktop
{

class Film;

/// What an added text file reads like: its first lines in the chosen encoding, what was detected and how sure that is,
/// up to three other encodings one click away, how many bytes do not decode; and which font stands in where the chosen
/// one lacks letters that the drawn track uses. Hidden where there is nothing to say. Files are read on a thread of its
/// own. GUI thread.
class TextHelpPane final : public KFrame
{
    Q_OBJECT
public:
    explicit TextHelpPane(QWidget* parent = nullptr);
    ~TextHelpPane() override;

    /// Follows every change of this film from now on; null: nothing is shown. The film may go while it is shown.
    void ShowFilm(Film* film);

protected:
    void changeEvent(QEvent* event) override;

private:
    class Impl;
    std::unique_ptr<Impl> m_impl;
};

} // namespace Korvex::Desktop
