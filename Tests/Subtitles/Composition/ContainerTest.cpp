#include "Hypodermic/Container.h"
#include "Hypodermic/ContainerBuilder.h"

#include <memory>

// What the module relies on in its container; both the project's own header and the library have to pass.
namespace
{

class IPart
{
public:
    virtual ~IPart() = default;
    [[nodiscard]] virtual int Number() const = 0;
};

template <int N>
class Part final : public IPart
{
public:
    int Number() const override { return N; }
};

class IWhole
{
public:
    virtual ~IWhole() = default;
    [[nodiscard]] virtual IPart const* GetPart() const = 0;
    [[nodiscard]] virtual std::size_t CountExtras() const = 0;
};

class IExtra
{
public:
    virtual ~IExtra() = default;
    virtual void Use() = 0;
};

/// A second base, so that the address of the interface differs from that of the object.
class Tag
{
public:
    virtual ~Tag() = default;
    int value = 7;
};

class Whole final : public Tag, public IWhole
{
public:
    Whole(std::shared_ptr<IPart> const& part, std::vector<std::shared_ptr<IExtra>> extras)
        : m_part(part),
          m_extras(std::move(extras))
    {
    }
    IPart const* GetPart() const override { return m_part.get(); }
    std::size_t CountExtras() const override { return m_extras.size(); }

private:
    std::shared_ptr<IPart> m_part;
    std::vector<std::shared_ptr<IExtra>> m_extras;
};

class IEgg
{
public:
    virtual ~IEgg() = default;
    virtual void Hatch() = 0;
};

class IHen
{
public:
    virtual ~IHen() = default;
    virtual void Lay() = 0;
};

class Egg final : public IEgg
{
public:
    explicit Egg(std::shared_ptr<IHen> const& hen) : m_hen(hen) {}
    void Hatch() override {}

private:
    std::shared_ptr<IHen> m_hen;
};

class Hen final : public IHen
{
public:
    explicit Hen(std::shared_ptr<IEgg> const& egg) : m_egg(egg) {}
    void Lay() override {}

private:
    std::shared_ptr<IEgg> m_egg;
};

std::string MessageOf(std::function<void()> const& action)
{
    try
    {
        action();
    }
    catch (std::exception const& error)
    {
        return error.what();
    }
    return "nothing thrown";
}

TEST(ContainerTest, WiresConstructorsAndKeepsSingleInstances)
{
    Hypodermic::ContainerBuilder builder;
    builder.registerType<Whole>().as<IWhole>();
    builder.registerType<Part<1>>().as<IPart>().singleInstance();
    auto const container = builder.build();

    auto const first = container->resolve<IWhole>();
    auto const second = container->resolve<IWhole>();
    EXPECT_NE(first, second);
    EXPECT_EQ(first->GetPart(), second->GetPart());
    EXPECT_EQ(first->GetPart(), container->resolve<IPart>().get());
    EXPECT_EQ(first->CountExtras(), 0u) << "an optional service that nobody registered";
    EXPECT_NE(builder.build()->resolve<IPart>(), container->resolve<IPart>()) << "containers share no instances";
}

TEST(ContainerTest, ResolvesTheLastRegistrationOrAllInOrder)
{
    Hypodermic::ContainerBuilder builder;
    builder.registerType<Part<1>>().as<IPart>();
    builder.registerInstance(std::make_shared<Part<2>>()).as<IPart>();
    builder.registerType<Part<3>>().as<IPart>().asSelf().singleInstance();
    auto const container = builder.build();

    EXPECT_EQ(container->resolve<IPart>()->Number(), 3);
    EXPECT_EQ(container->resolve<Part<3>>().get(), container->resolve<IPart>().get());
    std::vector<int> numbers;
    for (auto const& part : container->resolveAll<IPart>())
        numbers.push_back(part->Number());
    EXPECT_EQ(numbers, (std::vector<int>{1, 2, 3}));
    EXPECT_TRUE(container->resolveAll<IExtra>().empty());
}

TEST(ContainerTest, ReportsWhatIsMissing)
{
    Hypodermic::ContainerBuilder builder;
    builder.registerType<Whole>().as<IWhole>();
    auto const container = builder.build();
    EXPECT_THAT(MessageOf([&] { container->resolve<IPart>(); }), testing::HasSubstr("Unable to resolve"));
    auto const nested = MessageOf([&] { container->resolve<IWhole>(); });
    EXPECT_THAT(nested, testing::HasSubstr("Unable to resolve"));
    EXPECT_THAT(nested, testing::HasSubstr("IPart"));
}

TEST(ContainerTest, ReportsCircles)
{
    Hypodermic::ContainerBuilder builder;
    builder.registerType<Egg>().as<IEgg>();
    builder.registerType<Hen>().as<IHen>();
    auto const container = builder.build();
    EXPECT_THAT(MessageOf([&] { container->resolve<IEgg>(); }), testing::HasSubstr("Circular dependency"));
}

} // namespace
