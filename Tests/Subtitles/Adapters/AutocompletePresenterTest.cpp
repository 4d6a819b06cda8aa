#include "Subtitles/Fakes/FakeOnlineService.h"

#include "Subtitles/Adapters/AutocompletePresenter.h"

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
using Services = std::vector<std::shared_ptr<UseCases::IOnlineSearchController>>;

void Wait(std::function<bool()> const& isEnough, std::chrono::milliseconds longest = 5s)
{
    QElapsedTimer timer;
    timer.start();
    while (!isEnough() && timer.elapsed() < longest.count())
        QCoreApplication::processEvents(QEventLoop::AllEvents, 1);
}

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
    /// Until the service has been asked that often, or for a while.
    void Type(char const* text, std::size_t questions = 0)
    {
        m_presenter->SetText(text);
        Wait([&] { return questions != 0 && m_service->started.size() >= questions; }, questions != 0 ? 5000ms : 30ms);
    }
    void Answer(std::vector<QString> const& titles)
    {
        m_service->Suggest(titles);
        m_service->End();
    }

    int m_argumentCount = 0;
    QCoreApplication const m_application{m_argumentCount, nullptr};
    std::shared_ptr<Testing::FakeOnlineService> m_service = std::make_shared<Testing::FakeOnlineService>();
    std::unique_ptr<AutocompletePresenter> m_presenter = std::make_unique<AutocompletePresenter>(Services{m_service});
    std::vector<std::string> shown;
    std::function<void()> onShown;
};

TEST_F(AutocompletePresenterTest, AsksOnceTheTextRestsAndOnlyWhatIsWorthIt)
{
    m_presenter->SetDelay(AutocompletePresenter::DELAY);
    QElapsedTimer timer;
    timer.start();
    for (char const* const text : {"a", "al", "ali"})
        m_presenter->SetText(text);
    Type(" Tom & Jerry #2 ", 1);
    EXPECT_GE(timer.elapsed(), 299);
    Answer({" Heat", "HEAT", "", "Heat  2", "Été", "ÉTÉ"});
    EXPECT_THAT(shown, ElementsAre(" Tom & Jerry #2 : Heat Heat 2 Été"));

    m_presenter->SetDelay(1ms);
    Type("Tom Jerry   2"); // the same for a service
    Type("Tom", 2);
    std::vector<QString> many;
    for (int i = 0; i < 30; ++i)
        many.push_back(QString::number(i));
    Answer(many);
    EXPECT_THAT(shown.back(), testing::EndsWith(" 18 19"));
    for (char const* const text : {"", " x ", "#&%?", "é "})
        Type(text);
    EXPECT_THAT(m_service->started, ElementsAre("Tom Jerry 2", "Tom"));
    EXPECT_EQ(shown.size(), 3u);
    EXPECT_EQ(shown.back(), ":") << "the list of what is gone is taken away";
}

TEST_F(AutocompletePresenterTest, WhileAnOlderTextIsAnsweredTheNewestOneWaits)
{
    Type("al", 1);
    for (char const* const text : {"ali", "alie", "alien"})
        Type(text);
    Answer({"Ali"});
    EXPECT_THAT(shown, IsEmpty());
    EXPECT_THAT(m_service->started, ElementsAre("al", "alien"));
    Type("aliens");
    m_presenter->SetText("alien"); // back again before the answer
    Answer({"Alien"});
    Type("alien");
    EXPECT_THAT(shown, ElementsAre("alien: Alien"));
    EXPECT_EQ(m_service->started.size(), 2u);

    Type("heat", 3);
    m_presenter->SetDelay(1h);
    m_presenter->SetText("heat 2");
    Answer({});
    EXPECT_EQ(m_service->started.size(), 3u) << "it has not rested yet";
}

TEST_F(AutocompletePresenterTest, AFailureIsSilentAndTheNextTextIsAsked)
{
    Type("al", 1);
    Type("ali");
    m_service->Fail(UseCases::IOnlineSearchController::NoConnection);
    Type("ali", 2);
    m_service->Fail(UseCases::IOnlineSearchController::ServerError);
    Type("ali");
    EXPECT_THAT(m_service->started, ElementsAre("al", "ali")) << "what failed is not tried over and over";
    Type("alien", 3);
    Answer({"Alien"});
    EXPECT_THAT(shown, ElementsAre("alien: Alien"));
}

TEST_F(AutocompletePresenterTest, NothingArrivesAfterStopAndTheNextTextGetsThrough)
{
    Type("heat", 1);
    m_presenter->Stop();
    Type("alien"); // the service is busy with what was given up and will not tell of its end
    Answer({"Heat"});
    Type("alien", 2);
    EXPECT_THAT(m_service->started, ElementsAre("heat", "alien"));
    EXPECT_THAT(shown, IsEmpty());
    Answer({"Alien"});
    m_presenter->SetText("ronin");
    m_presenter->Stop();
    Type("alien");
    EXPECT_THAT(shown, ElementsAre("alien: Alien", "alien: Alien")) << "remembered";
    EXPECT_EQ(m_service->started.size(), 2u);
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
    Answer({"Alien"});
    EXPECT_EQ(m_presenter, nullptr);

    for (Services const& services : {Services{m_service}, Services{}})
    {
        m_presenter = std::make_unique<AutocompletePresenter>(services);
        m_presenter->SetDelay(1ms);
        Type("heat");
        m_presenter.reset();
        EXPECT_TRUE(m_service->isCanceled);
    }
    m_service->isCanceled = false;
    Answer({"Heat"}); // into nothing
}

} // namespace
} // namespace Korvex::Converter::Subtitles::Adapters
