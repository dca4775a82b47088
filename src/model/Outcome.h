// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include <utility>
#include <variant>

/// How a function returns an error: `return Failure{reason};`.
template <class E> struct Failure
{
    E error;
};
template <class E> Failure(E) -> Failure<E>;

/// Either the result of an operation or the reason why there is none.
template <class T, class E> class [[nodiscard]] Outcome
{
public:
    Outcome(T value) : m_held(std::in_place_index<0>, std::move(value)) {}
    Outcome(Failure<E> failure) : m_held(std::in_place_index<1>, std::move(failure.error)) {}

    bool ok() const noexcept { return m_held.index() == 0; }
    explicit operator bool() const noexcept { return ok(); }

    /// To be asked only when ok().
    const T &value() const & { return *std::get_if<0>(&m_held); }
    T &&value() && { return std::move(*std::get_if<0>(&m_held)); }
    /// To be asked only when not ok().
    const E &error() const { return *std::get_if<1>(&m_held); }

private:
    std::variant<T, E> m_held;
};

/// The value of an operation that has none: it was done.
struct Done
{
};
