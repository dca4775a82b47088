// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include <tuple>

/// Brings what was changed in a dialog's copy of a record into the record as it is by then. Fields are named by tuples
/// of pointers to members.
namespace recordMerge
{

template <class Record, class... Types>
bool isSame(const Record &one, const Record &other, const std::tuple<Types Record::*...> &fields)
{
    return std::apply([&](auto... field) { return ((one.*field == other.*field) && ...); }, fields);
}

/// `edited`, but for the fields in which it is as it was `opened`: these are as at `present`. Fields of `unit` mean
/// something together only, and count as changed when one of them is.
template <class Record, class... Types, class... UnitTypes>
Record merged(const Record &edited, const Record &opened, const Record &present,
              const std::tuple<Types Record::*...> &fields, const std::tuple<UnitTypes Record::*...> &unit)
{
    Record result = edited;
    const auto takePresent = [&](auto field) {
        if (edited.*field == opened.*field)
            result.*field = present.*field;
    };
    std::apply([&](auto... field) { (takePresent(field), ...); }, fields);
    const Record &source = isSame(edited, opened, unit) ? present : edited;
    std::apply([&](auto... field) { ((result.*field = source.*field), ...); }, unit);
    return result;
}

} // namespace recordMerge
