#pragma once

#include <boost/core/demangle.hpp>

#include <algorithm>
#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <stdexcept>
#include <string>
#include <type_traits>
#include <typeindex>
#include <typeinfo>
#include <utility>
#include <vector>

/// A small dependency-injection container, used where the library of this name is not installed. It offers the part of
/// that library's builder interface that the project uses, so that either can be compiled in.
namespace Hypodermic
{

/// Nothing is registered for what was asked.
class ResolutionException : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

/// A component needs, directly or through others, an object of itself.
class CircularDependencyException : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

/// A component could not be made; the text ends in the reason.
class ActivationException : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

class Container;

namespace Detail
{

class Registration;

/// One call of `resolve` from outside and all that it pulls in.
struct Resolution
{
    Container& container;
    std::vector<Registration const*> activating; ///< outermost first
};

inline std::string NameOf(std::type_index type)
{
    return boost::core::demangle(type.name());
}

/// How to make one component, and under which types it is found.
class Registration
{
public:
    using Factory = std::function<std::shared_ptr<void>(Resolution&)>;
    /// Turns the address of the component into that of one of its bases.
    using Cast = std::function<std::shared_ptr<void>(std::shared_ptr<void> const&)>;

    Registration(std::type_index type, Factory factory) : m_type(type), m_factory(std::move(factory)) {}

    void AddAlias(std::type_index type, Cast cast) { m_aliases[type] = std::move(cast); }
    void AddSelf() { m_isSelf = true; }
    void MakeSingle() { m_isSingle = true; }

    [[nodiscard]] std::type_index GetType() const { return m_type; }
    [[nodiscard]] bool IsSingle() const { return m_isSingle; }

    /// The types under which the component is found: its bases, and itself when asked for or when there are none.
    [[nodiscard]] std::vector<std::type_index> GetKeys() const
    {
        std::vector<std::type_index> keys;
        for (auto const& [type, cast] : m_aliases)
            keys.push_back(type);
        if (m_isSelf || keys.empty())
            keys.push_back(m_type);
        return keys;
    }

    [[nodiscard]] std::shared_ptr<void> Make(Resolution& resolution) const { return m_factory(resolution); }

    [[nodiscard]] std::shared_ptr<void> CastTo(std::type_index type, std::shared_ptr<void> const& component) const
    {
        auto const alias = m_aliases.find(type);
        return alias == m_aliases.end() ? component : alias->second(component);
    }

private:
    std::type_index m_type;
    Factory m_factory;
    std::map<std::type_index, Cast> m_aliases;
    bool m_isSelf = false;
    bool m_isSingle = false;
};

} // namespace Detail

/// Makes objects by what was registered. Any thread; one object at a time.
class Container
{
public:
    /// `ContainerBuilder::build` makes containers.
    explicit Container(std::vector<std::shared_ptr<Detail::Registration const>> const& registrations)
    {
        for (auto const& registration : registrations)
        {
            for (std::type_index const key : registration->GetKeys())
                m_registrations[key].push_back(registration);
        }
    }
    Container(Container const&) = delete;
    Container& operator=(Container const&) = delete;

    /// An object of what was registered last for `T`, never null. Throws ResolutionException ("Unable to resolve") when
    /// nothing was, ActivationException when the object or one that it needs could not be made, and
    /// CircularDependencyException.
    template <class T>
    std::shared_ptr<T> resolve()
    {
        Detail::Resolution resolution{*this, {}};
        return Resolve<T>(resolution);
    }

    /// One object of each registration for `T`, in the order of registration.
    template <class T>
    std::vector<std::shared_ptr<T>> resolveAll()
    {
        Detail::Resolution resolution{*this, {}};
        return ResolveAll<T>(resolution);
    }

    template <class T>
    std::shared_ptr<T> Resolve(Detail::Resolution& resolution)
    {
        auto const found = m_registrations.find(typeid(T));
        if (found == m_registrations.end())
            throw ResolutionException("Unable to resolve " + Detail::NameOf(typeid(T)));
        return std::static_pointer_cast<T>(Get(typeid(T), found->second.back(), resolution));
    }

    template <class T>
    std::vector<std::shared_ptr<T>> ResolveAll(Detail::Resolution& resolution)
    {
        std::vector<std::shared_ptr<T>> all;
        if (auto const found = m_registrations.find(typeid(T)); found != m_registrations.end())
        {
            for (auto const& registration : found->second)
                all.push_back(std::static_pointer_cast<T>(Get(typeid(T), registration, resolution)));
        }
        return all;
    }

private:
    using RegistrationPointer = std::shared_ptr<Detail::Registration const>;

    std::shared_ptr<void> Get(std::type_index type, RegistrationPointer const& registration,
                              Detail::Resolution& resolution)
    {
        std::lock_guard const lock(m_mutex);
        if (auto const single = m_singles.find(registration.get()); single != m_singles.end())
            return registration->CastTo(type, single->second);

        std::shared_ptr<void> const component = Activate(*registration, resolution);
        if (registration->IsSingle())
            m_singles.emplace(registration.get(), component);
        return registration->CastTo(type, component);
    }

    static std::shared_ptr<void> Activate(Detail::Registration const& registration, Detail::Resolution& resolution)
    {
        auto& activating = resolution.activating;
        std::string const name = Detail::NameOf(registration.GetType());
        if (std::find(activating.begin(), activating.end(), &registration) != activating.end())
            throw CircularDependencyException("Circular dependency: " + name + " needs itself");
        activating.push_back(&registration);
        try
        {
            auto component = registration.Make(resolution);
            activating.pop_back();
            return component;
        }
        catch (CircularDependencyException const&)
        {
            throw;
        }
        catch (ActivationException const&)
        {
            throw;
        }
        catch (std::exception const& error)
        {
            throw ActivationException("Unable to activate " + name + ": " + error.what());
        }
    }

    std::map<std::type_index, std::vector<RegistrationPointer>> m_registrations;
    std::map<Detail::Registration const*, std::shared_ptr<void>> m_singles;
    std::recursive_mutex m_mutex;
};

namespace Detail
{

/// Stands for any constructor argument: it becomes the object, or all the objects, of the type that is asked for.
class Argument
{
public:
    explicit Argument(Resolution& resolution) : m_resolution(resolution) {}

    template <class T>
    operator std::shared_ptr<T>() const // NOLINT(google-explicit-constructor)
    {
        return m_resolution.container.Resolve<T>(m_resolution);
    }

    template <class T>
    operator std::vector<std::shared_ptr<T>>() const // NOLINT(google-explicit-constructor)
    {
        return m_resolution.container.ResolveAll<T>(m_resolution);
    }

private:
    Resolution& m_resolution;
};

constexpr std::size_t MAXIMUM_ARGUMENTS = 10;

template <std::size_t>
using ArgumentAt = Argument;

template <class T, std::size_t... N>
constexpr bool IsConstructible(std::index_sequence<N...>)
{
    return std::is_constructible_v<T, ArgumentAt<N>...>;
}

/// The constructor with the fewest arguments is taken.
template <class T, std::size_t Count = 0>
constexpr std::size_t CountArguments()
{
    static_assert(Count <= MAXIMUM_ARGUMENTS, "no constructor takes only shared pointers and vectors of them");
    if constexpr (IsConstructible<T>(std::make_index_sequence<Count>()))
        return Count;
    else
        return CountArguments<T, Count + 1>();
}

template <class T, std::size_t... N>
std::shared_ptr<T> Construct(Resolution& resolution, std::index_sequence<N...>)
{
    // In braces, so that the arguments are made from left to right.
    return std::shared_ptr<T>(new T{ArgumentAt<N>(resolution)...});
}

} // namespace Detail

} // namespace Hypodermic
