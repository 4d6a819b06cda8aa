#pragma once

#include "Subtitles/Adapters/IOnlineSearchDialog.h"

#include <QFrame>

class QLabel;
class QProgressBar;
class QPushButton;

namespace Korvex::Converter::Subtitles::Details
{

/// The foot of the search window: what it is about, what came of it, and what can be done now. GUI thread.
class OnlineSearchWindowStatus final : public QFrame
{
    Q_OBJECT
public:
    explicit OnlineSearchWindowStatus(QWidget* parent = nullptr);
    ~OnlineSearchWindowStatus() override;

    /// @param sentence empty where the state and the counts say it all
    void SetState(Adapters::OnlineSearchState state, QString const& sentence, Adapters::OnlineSearchMark mark);
    void SetCounts(int found, int selected);

Q_SIGNALS:
    void CancelRequested();
    void DownloadRequested();
    void CloseRequested();

protected:
    void changeEvent(QEvent* event) override;

private:
    class Sign;

    void Update();
    void SayAloud();
    [[nodiscard]] QString DescribeState() const;

    QProgressBar* m_busy;
    Sign* m_sign;
    QLabel* m_sentenceLabel;
    QPushButton* m_cancel;
    QPushButton* m_download;
    QPushButton* m_close;
    Adapters::OnlineSearchState m_state = Adapters::OnlineSearchState::Ready;
    Adapters::OnlineSearchMark m_mark = Adapters::OnlineSearchMark::None;
    QString m_sentence;
    int m_found = 0;
    int m_selected = 0;
};

} // namespace Korvex::Converter::Subtitles::Details
