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
};

class Whole final : public IWhole
{
public:
    explicit Whole(std::shared_ptr<IPart> const&) {}
};

/// Makes a circle with the whole.
class LoopingPart final : public IPart
{
public:
    explicit LoopingPart(std::shared_ptr<IWhole> const&) {}
    int Number() const override { return 0; }
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
    builder.registerType<Whole>().as<IWhole>();
    builder.registerType<LoopingPart>().as<IPart>();
    auto const container = builder.build();
    EXPECT_THAT(MessageOf([&] { container->resolve<IPart>(); }), testing::HasSubstr("Circular dependency"));
}

} // namespace
