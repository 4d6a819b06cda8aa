#include "Subtitles/Details/SubtitleCollection.h"

#include "Subtitles/Details/TrackListModel.h"
#include "Subtitles/Details/TrackListView.h"

#include "Gui/ModalPopup.h"

#include <QEvent>
#include <QVBoxLayout>

#include <utility>

namespace Korvex::Converter::Subtitles::Details
{

using Entities::SubtitleTrackID;

class SubtitleCollection::Impl
{
public:
    explicit Impl(SubtitleCollection& owner) : view(new TrackListView(model)), m_owner(owner)
    {
        QObject::connect(view, &TrackListView::RowChosen, view, [this](int row) { Choose(row); });
        QObject::connect(view, &TrackListView::ExtractionRequested, view,
                         [this](int row)
                         {
                             if (auto const id = model.GetTrackAt(row))
                                 Q_EMIT m_owner.ExtractSubtitleRequested(*id);
                         });
        QObject::connect(view, &TrackListView::MenuRequested, view,
                         [this](int row, QPoint const& position)
                         {
                             if (auto const id = model.GetTrackAt(row); id && menuHandler)
                                 menuHandler(*id, position);
                         });
    }

    TrackListModel model;
    TrackListView* view; ///< a child of the list
    TrackMenuHandler menuHandler;

private:
    /// Whoever hears of the choice may refill the list.
    void Choose(int row)
    {
        auto const id = model.GetTrackAt(row);
        model.SetChosenRow(row);
        if (id)
            Q_EMIT m_owner.SubtitleTrackSelected(*id);
        else if (row == TrackListModel::ALL_SOFT_ROW)
            Q_EMIT m_owner.AllSoftSubtitlesSelected();
        else
            Q_EMIT m_owner.NoSubtitlesSelected();
        // As a drop-down the list has done its work; where it stands in a panel it stays.
        if (auto* const popup = qobject_cast<GUI::ModalPopup*>(m_owner.parentWidget()))
            popup->hide();
    }

    SubtitleCollection& m_owner;
};

SubtitleCollection::SubtitleCollection(QWidget* parent) : QFrame(parent), m_impl(std::make_unique<Impl>(*this))
{
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_impl->view);
    m_impl->view->setObjectName(QStringLiteral("trackListView"));
    setFocusProxy(m_impl->view);
    Retranslate();
}

SubtitleCollection::~SubtitleCollection()
{
    delete m_impl->view; // before its model
}

void SubtitleCollection::AddTrack(Entities::SubtitleTrack const& track)
{
    m_impl->model.AddTrack(track);
}

void SubtitleCollection::Clear()
{
    m_impl->model.ClearTracks();
}

void SubtitleCollection::SetCurrentTrack(SubtitleTrackID const& id)
{
    if (auto const row = m_impl->model.FindTrack(id))
        m_impl->model.SetChosenRow(*row);
}

void SubtitleCollection::SetWithoutSubtitles()
{
    m_impl->model.SetChosenRow(TrackListModel::WITHOUT_SUBTITLES_ROW);
}

void SubtitleCollection::SetAllSoftSubtitles()
{
    m_impl->model.SetChosenRow(TrackListModel::ALL_SOFT_ROW);
}

void SubtitleCollection::SetSoftSubAvailable(bool available)
{
    m_impl->model.SetSoftSubAvailable(available);
}

bool SubtitleCollection::IsSetWithoutSubtitles() const
{
    return m_impl->model.GetChosenRow() == TrackListModel::WITHOUT_SUBTITLES_ROW;
}

bool SubtitleCollection::IsSetAllSoftSubtitles() const
{
    return m_impl->model.GetChosenRow() == TrackListModel::ALL_SOFT_ROW;
}

QString SubtitleCollection::GetTitleWithoutSubtitles() const
{
    return m_impl->model.GetTitle(TrackListModel::WITHOUT_SUBTITLES_ROW);
}

QString SubtitleCollection::GetTitleAllSoftSub() const
{
    return m_impl->model.GetTitle(TrackListModel::ALL_SOFT_ROW);
}

QString SubtitleCollection::GetTitleCurrentTrack() const
{
    int const row = m_impl->model.GetChosenRow();
    return m_impl->model.GetTrackAt(row) ? m_impl->model.GetTitle(row) : QString();
}

QString SubtitleCollection::GetTitleOfChoice() const
{
    if (IsSetWithoutSubtitles())
        return GetTitleWithoutSubtitles();
    if (IsSetAllSoftSubtitles())
        return GetTitleAllSoftSub();
    return GetTitleCurrentTrack();
}

void SubtitleCollection::SetTrackMenuHandler(TrackMenuHandler handler)
{
    m_impl->menuHandler = std::move(handler);
}

void SubtitleCollection::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        Retranslate();
    QFrame::changeEvent(event);
}

void SubtitleCollection::Retranslate()
{
    m_impl->view->setAccessibleName(TrackListModel::tr("Subtitle tracks"));
    m_impl->view->Retranslate();
}

} // namespace Korvex::Converter::Subtitles::Details
