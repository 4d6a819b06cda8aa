#pragma once

#include <QLineEdit>
#include <QPointer>

#include <vector>

namespace Korvex::Converter::Subtitles::Details
{

class SuggestionList;

/// A line edit with a list of suggestions under it. The field keeps the focus all the time; the list closes whenever
/// the field loses it, is moved, or the user turns to something else. GUI thread.
class AutocompleteField final : public QLineEdit
{
    Q_OBJECT
public:
    explicit AutocompleteField(QWidget* parent = nullptr);
    ~AutocompleteField() override;

    /// Not after the user has dismissed the list or decided, until the text is edited again: what comes then belongs to
    /// a text that nobody asks about any more.
    void ShowSuggestions(std::vector<QString> const& titles);
    /// Emits none of the signals below.
    void ReplaceText(QString const& text);

Q_SIGNALS:
    /// By the user; text that an input method is still composing is told when it is settled.
    void UserEdited(QString const& text);
    /// The text is the title by then.
    void SuggestionChosen(QString const& title);
    /// Enter without a marked suggestion. It does not press the dialog's default button as well.
    void Confirmed();

protected:
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    bool focusNextPrevChild(bool next) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void Retranslate();
    [[nodiscard]] bool IsListOpen() const;
    [[nodiscard]] bool IsListKey(QKeyEvent const& event) const;
    void HandleListKey(int key);
    void MakeList();
    void CloseList();
    void Decide();
    void Choose(QString const& title);
    void OnTextEdited();
    void TellOwedEdit();

    QPointer<SuggestionList> m_list; ///< a child of the window, which may go before the field
    bool m_isDismissed = false;
    bool m_isComposing = false;
    bool m_owesEdit = false; ///< edited, and nobody told yet
};

} // namespace Korvex::Converter::Subtitles::Details
