// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#ifndef OPTIONARRAY_H
#define OPTIONARRAY_H

#include <cups/cups.h>

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <utility>

/** Frees an array that becomes empty. libcups itself keeps its memory and allocates another one for the next option. */
inline void removeOption(const char *name, int *count, cups_option_t **options)
{
    *count = cupsRemoveOption(name, *count, options);
    if (*count == 0) {
        std::free(*options);
        *options = nullptr;
    }
}

/** An array of libcups' options, sorted by name as libcups keeps it, with at most one option of each name. */
class OptionArray
{
public:
    OptionArray() = default;
    explicit OptionArray(const cups_dest_t &dest)
    {
        for (int i = 0; i < dest.num_options; ++i)
            set(dest.options[i].name, dest.options[i].value);
    }
    OptionArray(const OptionArray &other)
    {
        for (const cups_option_t &option : other)
            set(option.name, option.value);
    }
    OptionArray(OptionArray &&other) noexcept
        : count(std::exchange(other.count, 0))
        , options(std::exchange(other.options, nullptr))
    {
    }
    OptionArray &operator=(OptionArray other) noexcept
    {
        std::swap(count, other.count);
        std::swap(options, other.options);
        return *this;
    }
    ~OptionArray() { cupsFreeOptions(count, options); }

    void set(const char *name, const char *value) { count = cupsAddOption(name, value, count, &options); }
    void remove(const char *name) { removeOption(name, &count, &options); }
    /** Adds the options of a line of the options file. */
    void parse(const char *text) { count = cupsParseOptions(text, count, &options); }

    /** Calls @p function(int &count, cups_option_t *&options), which passes the array to a function of libcups. */
    template<typename Function>
    auto pass(Function function)
    {
        return function(count, options);
    }

    /** Null when there is no such option. */
    const char *value(const char *name) const { return cupsGetOption(name, count, options); }
    bool has(const char *name, const char *wanted) const
    {
        const char *found = value(name);
        return found && !std::strcmp(found, wanted);
    }

    int size() const { return count; }
    const cups_option_t *begin() const { return options; }
    const cups_option_t *end() const { return options + count; }

    bool operator==(const OptionArray &other) const
    {
        return count == other.count
               && std::all_of(
                   begin(), end(),
                   [&other](const cups_option_t &option) { return other.has(option.name, option.value); });
    }

private:
    int count = 0;
    cups_option_t *options = nullptr;
};

#endif
