#pragma once

#include "Hypodermic/Container.h"

namespace Hypodermic
{

/// What may still be said about a registration.
template <class T>
class RegistrationDescriptor
{
public:
    explicit RegistrationDescriptor(std::shared_ptr<Detail::Registration> registration)
        : m_registration(std::move(registration))
    {
    }

    /// The component is found as `I`, a base of `T`; may be said for several.
    template <class I>
    RegistrationDescriptor& as()
    {
        static_assert(std::is_base_of_v<I, T>, "a component is found only as one of its bases");
        m_registration->AddAlias(typeid(I), [](std::shared_ptr<void> const& component)
                                 { return std::shared_ptr<I>(std::static_pointer_cast<T>(component)); });
        return *this;
    }

    /// The component is found as itself, too.
    RegistrationDescriptor& asSelf()
    {
        m_registration->AddSelf();
        return *this;
    }

    /// A container makes the component once and keeps it.
    RegistrationDescriptor& singleInstance()
    {
        m_registration->MakeSingle();
        return *this;
    }

private:
    std::shared_ptr<Detail::Registration> m_registration;
};

/// Collects registrations and builds containers from them.
class ContainerBuilder
{
public:
    /// A component that is made by its constructor, whose arguments (`std::shared_ptr<I>` and
    /// `std::vector<std::shared_ptr<I>>`, at most ten) come from the container.
    template <class T>
    RegistrationDescriptor<T> registerType()
    {
        constexpr std::size_t COUNT = Detail::CountArguments<T>();
        return Add<T>([](Detail::Resolution& resolution) -> std::shared_ptr<void>
                      { return Detail::Construct<T>(resolution, std::make_index_sequence<COUNT>()); });
    }

    /// A component that exists already.
    template <class T>
    RegistrationDescriptor<T> registerInstance(std::shared_ptr<T> const& instance)
    {
        return Add<T>([instance](Detail::Resolution&) -> std::shared_ptr<void> { return instance; });
    }

    /// A container of what was registered so far; it keeps its single instances to itself.
    [[nodiscard]] std::shared_ptr<Container> build() const
    {
        std::vector<std::shared_ptr<Detail::Registration const>> registrations;
        for (auto const& registration : m_registrations)
            registrations.push_back(std::make_shared<Detail::Registration const>(*registration));
        return std::make_shared<Container>(registrations);
    }

private:
    template <class T>
    RegistrationDescriptor<T> Add(Detail::Registration::Factory factory)
    {
        auto registration = std::make_shared<Detail::Registration>(typeid(T), std::move(factory));
        m_registrations.push_back(registration);
        return RegistrationDescriptor<T>(std::move(registration));
    }

    std::vector<std::shared_ptr<Detail::Registration>> m_registrations;
};

} // namespace Hypodermic
