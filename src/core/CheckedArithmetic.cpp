// SPDX-License-Identifier: MIT
#include "core/CheckedArithmetic.h"

#include <cinttypes>
#include <cstdio>
#include <cstdlib>

namespace velto {

namespace {

[[noreturn]] void overflow(std::int64_t a, char operation, std::int64_t b)
{
    std::fprintf(stderr, "velto: fatal: arithmetic overflow in %" PRId64 " %c %" PRId64 "\n", a, operation, b);
    std::abort();
}

} // namespace

std::int64_t checkedMultiply(std::int64_t a, std::int64_t b)
{
    std::int64_t result = 0;
    if (__builtin_mul_overflow(a, b, &result))
        overflow(a, '*', b);
    return result;
}

std::int64_t checkedSubtract(std::int64_t a, std::int64_t b)
{
    std::int64_t result = 0;
    if (__builtin_sub_overflow(a, b, &result))
        overflow(a, '-', b);
    return result;
}

} // namespace velto
