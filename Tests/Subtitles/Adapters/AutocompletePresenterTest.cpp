#include "Subtitles/Adapters/AutocompletePresenter.h"

#include "Subtitles/Entities/SearchTags.h"
#include "Subtitles/UseCases/IOnlineSearchController.h"

#include "Core/EventHandlerList.h"

#include <QCoreApplication>
#include <QElapsedTimer>

#include <functional>

namespace Korvex::Converter::Subtitles::Adapters
{
namespace
{

using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::IsEmpty;

/// Keeps the rules of the real one: busy until its reply has come, still busy while it tells of a failure, and silent
/// about what was cancelled.
class SlowService final : public UseCases::IOnlineSearchController
{
public:
    using Observer = UseCases::IOnlineSearchControllerObserver;

    void RegisterEventHandler(Observer* observer) override { observers.RegisterEventHandler(observer); }
    void UnregisterEventHandler(Observer* observer) override { observers.UnregisterEventHandler(observer); }
    Status StartSearch(UseCases::SearchRequest const&) override { return UnsupportedSearch; }
    Status DownloadSubtitles(std::vector<std::shared_ptr<UseCases::SearchResult>> const&, ioPath const&) override
    {
        return UnsupportedSearch;
    }
    Status AutoSuggest(std::string const& tag, QString const& text) override
    {
        EXPECT_EQ(tag, Entities::SearchTags::TITLE);
        if (isBusy)
            return Busy;
        isCanceled = false;
        isBusy = true;
        asked.push_back(text.toStdString());
        return Success;
    }
    bool CancelOperation() override { return isCanceled = isBusy; }

    void Answer(std::vector<QString> const& titles)
    {
        if (!isCanceled)
            observers.Notify([&](Observer* observer) { observer->OnAutoSuggestResults(titles); });
        isBusy = false;
        if (!isCanceled)
            observers.Notify([](Observer* observer) { observer->OnOperationFinished(); });
    }
    void Fail()
    {
        if (!isCanceled)
            observers.Notify([](Observer* observer) { observer->OnOperationFailed(NoConnection, "offline"); });
        isBusy = false;
    }

    Core::EventHandlerList<Observer> observers;
    std::vector<std::string> asked;
    bool isBusy = false;
    bool isCanceled = false;
};

class AutocompletePresenterTest : public testing::Test, public UseCases::IAutocompletePresenterEventObserver
{
protected:
    AutocompletePresenterTest()
    {
        m_presenter->RegisterEventHandler(this);
        m_presenter->SetDelay(1ms);
    }

    void OnSuggestions(QString const& text, std::vector<QString> const& titles) override
    {
        shown.push_back(text.toStdString() + ":");
        for (QString const& title : titles)
            shown.back() += " " + title.toStdString();
        if (onShown)
            onShown();
    }

    static void Wait(std::function<bool()> const& isEnough, std::chrono::milliseconds longest = 5s)
    {
        QElapsedTimer timer;
        timer.start();
        while (!isEnough() && timer.elapsed() < longest.count())
            QCoreApplication::processEvents(QEventLoop::AllEvents, 1);
    }
    void Type(char const* text, std::size_t questions)
    {
        m_presenter->SetText(QString::fromUtf8(text));
        Wait([&] { return m_service->asked.size() >= questions; });
    }
    static void Rest()
    {
        Wait([] { return false; }, 30ms);
    }

    int m_argumentCount = 0;
    QCoreApplication const m_application{m_argumentCount, nullptr};
    std::shared_ptr<SlowService> m_service = std::make_shared<SlowService>();
    std::unique_ptr<AutocompletePresenter> m_presenter = std::make_unique<AutocompletePresenter>(
        std::vector<std::shared_ptr<UseCases::IOnlineSearchController>>{m_service, std::make_shared<SlowService>()});
    std::vector<std::string> shown;
    std::function<void()> onShown;
};

TEST_F(AutocompletePresenterTest, AsksOnceTheTextRestsAndOnlyWhatIsWorthIt)
{
    m_presenter->SetDelay(AutocompletePresenter::DELAY);
    QElapsedTimer timer;
    timer.start();
    for (char const* const text : {"a", "al", "ali", " Tom & Jerry #2 "})
        m_presenter->SetText(text);
    Wait([&] { return !m_service->asked.empty(); });
    EXPECT_GE(timer.elapsed(), 299);
    EXPECT_THAT(m_service->asked, ElementsAre("Tom Jerry 2"));

    m_presenter->SetDelay(1ms);
    m_service->Answer({" Heat", "HEAT", "", "Heat  2", "Été", "ÉTÉ"});
    EXPECT_THAT(shown, ElementsAre(" Tom & Jerry #2 : Heat Heat 2 Été"));
    m_presenter->SetText("Tom Jerry   2"); // the same for a service
    Rest();
    Type("Tom", 2);
    std::vector<QString> many;
    for (int i = 0; i < 30; ++i)
        many.push_back(QString::number(i));
    m_service->Answer(many);
    EXPECT_THAT(shown.back(), testing::EndsWith(" 18 19"));
    for (char const* const text : {"", " x ", "#&%?", "é "})
        Type(text, 0);
    Rest();
    EXPECT_THAT(m_service->asked, ElementsAre("Tom Jerry 2", "Tom"));
    EXPECT_EQ(shown.size(), 3u) << "the list of what is gone is taken away once";
    EXPECT_EQ(shown.back(), ":");
}

TEST_F(AutocompletePresenterTest, WhileAnOlderTextIsAnsweredTheNewestOneWaits)
{
    Type("al", 1);
    for (char const* const text : {"ali", "alie", "alien"})
    {
        m_presenter->SetText(text);
        Rest();
    }
    m_service->Answer({"Ali"});
    EXPECT_THAT(shown, IsEmpty());
    Type("alien", 2);
    EXPECT_THAT(m_service->asked, ElementsAre("al", "alien"));
    m_presenter->SetText("aliens");
    Rest();
    m_presenter->SetText("alien"); // back again before the answer
    m_service->Answer({"Alien"});
    Rest();
    EXPECT_THAT(shown, ElementsAre("alien: Alien"));
    EXPECT_EQ(m_service->asked.size(), 2u);
}

TEST_F(AutocompletePresenterTest, AFailureIsSilentAndTheNextTextIsAsked)
{
    Type("al", 1);
    m_presenter->SetText("ali");
    Rest();
    m_service->Fail();
    Wait([&] { return m_service->asked.size() == 2; });
    m_service->Fail();
    Rest();
    EXPECT_THAT(m_service->asked, ElementsAre("al", "ali")) << "what failed is not tried over and over";
    Type("alien", 3);
    m_service->Answer({"Alien"});
    EXPECT_THAT(shown, ElementsAre("alien: Alien"));
}

TEST_F(AutocompletePresenterTest, NothingArrivesAfterStopAndTheNextTextGetsThrough)
{
    Type("heat", 1);
    m_presenter->Stop();
    m_presenter->SetText("alien");
    Rest(); // the service is busy with what was given up and will not tell of its end
    EXPECT_THAT(m_service->asked, ElementsAre("heat"));
    m_service->Answer({"Heat"});
    Wait([&] { return m_service->asked.size() == 2; });
    EXPECT_THAT(m_service->asked, ElementsAre("heat", "alien"));
    EXPECT_THAT(shown, IsEmpty());
    m_service->Answer({"Alien"});
    m_presenter->SetText("ronin");
    m_presenter->Stop();
    Rest();
    EXPECT_THAT(m_service->asked, ElementsAre("heat", "alien"));
    m_presenter->SetText("alien");
    Wait([&] { return shown.size() == 2; });
    EXPECT_THAT(shown, ElementsAre("alien: Alien", "alien: Alien")) << "remembered";
    EXPECT_EQ(m_service->asked.size(), 2u);
}

TEST_F(AutocompletePresenterTest, MayBeDestroyedAtAnyTime)
{
    struct Second final : UseCases::IAutocompletePresenterEventObserver
    {
        void OnSuggestions(QString const&, std::vector<QString> const&) override { ADD_FAILURE() << "after its end"; }
    } second;
    m_presenter->RegisterEventHandler(&second);
    onShown = [this] { m_presenter.reset(); };
    Type("alien", 1);
    m_service->Answer({"Alien"});
    EXPECT_EQ(m_presenter, nullptr);
    EXPECT_EQ(shown.size(), 1u);

    m_presenter = std::make_unique<AutocompletePresenter>(
        std::vector<std::shared_ptr<UseCases::IOnlineSearchController>>{m_service});
    m_presenter->SetDelay(1ms);
    Type("heat", 2);
    m_presenter.reset();
    EXPECT_TRUE(m_service->isCanceled);
    m_service->isCanceled = false;
    m_service->Answer({"Heat"}); // into nothing
    Rest();

    AutocompletePresenter alone({});
    alone.SetDelay(1ms);
    alone.SetText("alien");
    Rest();
}

} // namespace
} // namespace Korvex::Converter::Subtitles::Adapters
