#pragma once

#include <map>
#include <memory>

namespace Korvex::Converter::Subtitles::Adapters
{

/// A presenter's connection to a view that the host owns: the view is held weakly, and the presenter observes it while
/// connected.
///
/// A view serves one presenter at a time: whoever connects last takes it over. Otherwise an edit in a panel that now
/// shows another film would still be written into the film shown before. GUI thread only.
template <typename View, typename Observer>
class ViewConnection
{
public:
    /// The observer is not owned; it has to live as long as this connection.
    explicit ViewConnection(Observer& observer) : m_observer(observer) {}
    ~ViewConnection() { Disconnect(); }
    ViewConnection(ViewConnection const&) = delete;
    ViewConnection& operator=(ViewConnection const&) = delete;

    /// Drops the present view and takes this one; an empty pointer only drops.
    void Connect(std::shared_ptr<View> const& view)
    {
        Disconnect();
        if (!view)
            return;
        if (auto const claim = Claims().find(view.get()); claim != Claims().end())
            claim->second->Disconnect();
        Claims().emplace(view.get(), this);
        m_key = view.get();
        m_view = view;
        view->RegisterEventHandler(&m_observer);
    }

    void Disconnect()
    {
        if (auto const view = m_view.lock())
            view->UnregisterEventHandler(&m_observer);
        m_view.reset();
        if (m_key != nullptr)
            Claims().erase(m_key);
        m_key = nullptr;
    }

    /// The view; empty while disconnected and after the view is gone.
    [[nodiscard]] std::shared_ptr<View> Lock() const { return m_view.lock(); }

private:
    using ClaimMap = std::map<View const*, ViewConnection*>;

    static ClaimMap& Claims()
    {
        static ClaimMap claims;
        return claims;
    }

    Observer& m_observer;
    std::weak_ptr<View> m_view;
    View const* m_key = nullptr; ///< under which this connection stands in the claims, also after the view is gone
};

} // namespace Korvex::Converter::Subtitles::Adapters
