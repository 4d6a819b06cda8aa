#include "Desktop/TextHelp/TextHelpPane.h"

#include "Desktop/Films/Film.h"
#include "Desktop/TextHelp/TextHelpView.h"

#include "Subtitles/Adapters/SubtitleEncodingNames.h"
#include "Subtitles/Entities/SubtitleCollection.h"

#include <QEvent>
#include <QPointer>
#include <QVBoxLayout>

namespace Korvex::Desktop
{

using Converter::Subtitles::Adapters::EncodingFromCoreString;
using Converter::Subtitles::Adapters::EncodingToCoreString;
using Converter::Subtitles::Entities::SubtitleTrack;
using Converter::Subtitles::Entities::SubtitleTrackID;

namespace
{

constexpr int MARGIN = 12;

/// What there may be something to say about; empty for tracks that are shown as they are.
std::optional<TextHelpRequest> MakeRequest(Film const& film, SubtitleTrack const& track)
{
    if (!track.encodingEditable && !track.styleEditable)
        return std::nullopt;
    TextHelpRequest request;
    if (track.isExternal)
    {
        request.path = track.path;
        request.encoding = EncodingToCoreString(track.encoding);
        request.hasEncoding = track.encodingEditable;
    }
    else
    {
        request.path = film.GetPath();
        request.stream = track.streamIndex;
    }
    if (track.styleEditable)
        request.fontFamily = film.GetCollection().textSettings.font.family().toStdString();
    return request;
}

} // namespace

class TextHelpPane::Impl
{
public:
    explicit Impl(TextHelpPane& owner) : m_owner(owner), m_view(new TextHelpView(&owner))
    {
        auto* const layout = new QVBoxLayout(&owner);
        layout->setContentsMargins(MARGIN, MARGIN, MARGIN, MARGIN);
        layout->addWidget(m_view);
        QObject::connect(&m_reader, &TextHelpReader::Finished, &owner,
                         [this](TextHelp const& help)
                         {
                             m_view->Show(help);
                             m_owner.setVisible(!m_view->IsEmpty());
                         });
        QObject::connect(m_view, &TextHelpView::EncodingChosen, &owner,
                         [this](QString const& encoding)
                         {
                             if (m_film)
                                 m_film->SetEncoding(m_track, EncodingFromCoreString(encoding.toStdString()));
                         });
    }

    void ShowFilm(Film* film)
    {
        if (m_film == film)
            return;
        if (m_film)
            m_film->disconnect(&m_owner);
        m_film = film;
        if (film != nullptr)
        {
            QObject::connect(film, &Film::Changed, &m_owner, [this] { Follow(); });
            QObject::connect(film, &QObject::destroyed, &m_owner, [this] { SayNothing(); });
        }
        Follow();
    }

private:
    void Follow()
    {
        auto const track = m_film ? m_film->GetDrawnTrack() : std::nullopt;
        auto const request = track ? MakeRequest(*m_film, *track) : std::nullopt;
        if (!request)
        {
            SayNothing();
            return;
        }
        if (m_request == request)
            return;
        // What is said of another text must not stand beside this one while it is read.
        if (track->id != m_track)
            SayNothing();
        m_track = track->id;
        m_request = request;
        m_reader.Request(*request);
    }

    void SayNothing()
    {
        m_request.reset();
        m_track.Clear();
        m_reader.Drop();
        m_view->Clear();
        m_owner.hide();
    }

    TextHelpPane& m_owner;
    TextHelpView* m_view;
    QPointer<Film> m_film;
    SubtitleTrackID m_track;
    std::optional<TextHelpRequest> m_request; ///< the newest
    TextHelpReader m_reader;
};

TextHelpPane::TextHelpPane(QWidget* parent) : KFrame(parent)
{
    setObjectName(QStringLiteral("textHelpPane"));
    setAccessibleName(tr("Help with the text"));
    m_impl = std::make_unique<Impl>(*this);
    hide();
}

TextHelpPane::~TextHelpPane() = default;

void TextHelpPane::ShowFilm(Film* film)
{
    m_impl->ShowFilm(film);
}

void TextHelpPane::changeEvent(QEvent* event)
{
    KFrame::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        setAccessibleName(tr("Help with the text"));
}

} // namespace Korvex::Desktop
