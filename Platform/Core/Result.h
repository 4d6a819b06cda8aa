#pragma once

#include "Core/Error.h"

#include <cassert>
#include <optional>
#include <utility>
#include <variant>

namespace Korvex::Core
{

/// Either a value or the error that stood in its way. Test it before taking the value.
template <typename T>
class [[nodiscard]] Result
{
public:
    Result(T value) : m_state(std::in_place_index<0>, std::move(value)) {}     // NOLINT(google-explicit-constructor)
    Result(Error error) : m_state(std::in_place_index<1>, std::move(error)) {} // NOLINT(google-explicit-constructor)

    explicit operator bool() const noexcept { return m_state.index() == 0; }

    [[nodiscard]] T& Value() &
    {
        assert(*this);
        return std::get<0>(m_state);
    }
    [[nodiscard]] T const& Value() const&
    {
        assert(*this);
        return std::get<0>(m_state);
    }
    [[nodiscard]] T&& Value() &&
    {
        assert(*this);
        return std::get<0>(std::move(m_state));
    }
    T* operator->() { return &Value(); }
    T const* operator->() const { return &Value(); }
    T& operator*() & { return Value(); }
    T const& operator*() const& { return Value(); }

    [[nodiscard]] Error const& GetError() const
    {
        assert(!*this);
        return std::get<1>(m_state);
    }

private:
    std::variant<T, Error> m_state;
};

/// The outcome of an operation that yields nothing but success.
using Status = std::optional<Error>;
inline constexpr std::nullopt_t SUCCESS = std::nullopt;

} // namespace Korvex::Core
