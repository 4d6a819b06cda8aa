#pragma once

#include "Desktop/TextHelp/TextHelp.h"

#include <QWidget>

#include <memory>

namespace Korvex::Desktop
{

/// Shows what there is to say about a text, hidden where that is nothing. A passive view. GUI thread.
class TextHelpView final : public QWidget
{
    Q_OBJECT
public:
    explicit TextHelpView(QWidget* parent = nullptr);
    ~TextHelpView() override;

    void Show(TextHelp const& help);
    /// Says nothing any more.
    void Clear();
    [[nodiscard]] bool IsEmpty() const;

Q_SIGNALS:
    /// The user wants the text read in this encoding, the core's name.
    void EncodingChosen(QString const& encoding);

protected:
    void changeEvent(QEvent* event) override;

private:
    class Impl;
    std::unique_ptr<Impl> m_impl;
};

} // namespace Korvex::Desktop
