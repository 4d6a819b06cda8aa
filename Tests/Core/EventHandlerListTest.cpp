#include "Core/EventHandlerList.h"
#include "Core/ScopedObservation.h"

#include <functional>

namespace Korvex::Core
{
namespace
{

class IListener
{
public:
    virtual void OnEvent(int value) = 0;
    virtual ~IListener() = default;
};

/// Writes its name into a shared log, then does what the test wants done inside the handler.
class Listener final : public IListener
{
public:
    Listener(std::string name, std::string& log) : m_name(std::move(name)), m_log(log) {}
    void OnEvent(int value) override
    {
        m_log += m_name + std::to_string(value) + " ";
        if (inside)
            inside(value);
    }
    std::function<void(int)> inside;

private:
    std::string m_name;
    std::string& m_log;
};

class EventHandlerListTest : public ::testing::Test
{
protected:
    void Notify(int value)
    {
        m_list.Notify([value](IListener* listener) { listener->OnEvent(value); });
    }

    std::string m_log;
    EventHandlerList<IListener, SyncExecutePolicy> m_list;
    Listener m_a{"A", m_log};
    Listener m_b{"B", m_log};
    Listener m_c{"C", m_log};
};

TEST_F(EventHandlerListTest, CallsEachObserverOnceInOrderOfRegistration)
{
    for (Listener* listener : {&m_a, &m_b, &m_a, &m_c})
        m_list.RegisterEventHandler(listener);
    m_list.RegisterEventHandler(nullptr);
    Notify(1);
    m_list.UnregisterEventHandler(&m_b);
    m_list.UnregisterEventHandler(&m_b);
    m_list.UnregisterEventHandler(nullptr);
    Notify(2);
    EXPECT_EQ(m_log, "A1 B1 C1 A2 C2 ");
}

TEST_F(EventHandlerListTest, SeesTheObserversThatWereThereWhenItBegan)
{
    m_list.RegisterEventHandler(&m_a);
    m_list.RegisterEventHandler(&m_b);
    m_a.inside = [this](int)
    {
        m_list.UnregisterEventHandler(&m_a);
        m_list.UnregisterEventHandler(&m_b);
        m_list.RegisterEventHandler(&m_c);
    };
    Notify(1);
    Notify(2);
    EXPECT_EQ(m_log, "A1 B1 C2 ");
}

TEST_F(EventHandlerListTest, AHandlerMayNotifyAgain)
{
    m_list.RegisterEventHandler(&m_a);
    m_list.RegisterEventHandler(&m_b);
    m_a.inside = [this](int value)
    {
        if (value == 1)
            Notify(7);
    };
    Notify(1);
    EXPECT_EQ(m_log, "A1 A7 B7 B1 ");
}

TEST_F(EventHandlerListTest, AScopedObservationEndsWithItsOwner)
{
    {
        ScopedObservation<IListener> const observation(m_list, m_a);
        Notify(1);
    }
    Notify(2);
    EXPECT_EQ(m_log, "A1 ");
}

} // namespace
} // namespace Korvex::Core
