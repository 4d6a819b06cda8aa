#pragma once

#include "Subtitles/Entities/Export.h"

#include <QFrame>

class QPushButton;

namespace Korvex::Converter::Subtitles::Details
{

/// Where more subtitles may come from: the buttons "Choose file" and "Find file". Their texts come from whoever shows
/// it. GUI thread.
class KVSUBTITLES_API SubtitleSourceSelector : public QFrame
{
    Q_OBJECT
public:
    explicit SubtitleSourceSelector(QWidget* parent = nullptr);
    ~SubtitleSourceSelector() override;

    void SetChooseButtonText(QString const& text);
    void SetFindButtonText(QString const& text);

Q_SIGNALS:
    void ChooseFileRequested();
    void FindFileRequested();

private:
    QPushButton* m_chooseButton;
    QPushButton* m_findButton;
};

} // namespace Korvex::Converter::Subtitles::Details
