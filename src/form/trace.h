// The trace: every procedure's name, and every failure.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "toolkit/base/error.h"

namespace zev {

struct Zevlin;

/// Adds a line to the ring of the last 100, or with tracing on straight to the file. A line that
/// begins with "error" in any case writes the ring to the file. Never fails.
void Traceit(Zevlin& form, std::string_view text);

/// The texts "True" and "False".
[[nodiscard]] std::string_view truthText(bool value);

/// Whether the figures of the first text field are still to be traced: once in a run, with tracing
/// on. Asking counts as tracing them.
[[nodiscard]] bool takeSpecsTurn(Zevlin& form);

/// head + number + ", " + description + tail, traced.
void traceFailure(Zevlin& form, std::string_view head, const toolkit::RunTimeError& failure,
                  std::string_view tail = {});

/// Runs a procedure's body under its failure trap: a failure is traced with the head given and
/// the procedure returns. True if the body ran to its end.
template <typename Body>
bool trapped(Zevlin& form, std::string_view head, Body body, std::string_view tail = {}) {
    try {
        body();
        return true;
    } catch (const std::exception&) {
        traceFailure(form, head, toolkit::currentFailure(), tail);
        return false;
    }
}

/// Traces the name of a procedure, and behind a blank what else there is to tell.
void traceCall(Zevlin& form, std::string_view name, std::string_view details);

/// Traces the failure in flight as "Error in NAME: #", its number and its description.
void traceFailureIn(Zevlin& form, std::string_view name);

/// A procedure of the form: traces its name, with the details behind a blank, then runs its body.
/// A failure ends the body; it is traced with the name and goes no further, so that what follows
/// the call runs in any case.
template <typename Body>
void procedure(Zevlin& form, std::string_view name, std::string_view details, const Body& body) {
    traceCall(form, name, details);
    try {
        body();
    } catch (const std::exception&) {
        traceFailureIn(form, name);
    }
}

/// The same with nothing to tell but the name.
template <typename Body>
void procedure(Zevlin& form, std::string_view name, const Body& body) {
    procedure(form, name, {}, body);
}

/// Runs a statement whose failure doesn't matter.
template <typename Body>
void ignoringFailures(Body body) {
    try {
        body();
    } catch (const std::exception&) {
    }
}

/// How much of the machine's memory is in use, as "42%"; empty on failure.
[[nodiscard]] std::string MemoryLoad(Zevlin& form);

/// This process's working set in bytes, and its peak; both 0 on failure.
[[nodiscard]] std::uint64_t GetMemoryUsage(Zevlin& form, std::uint64_t& peak);

} // namespace zev
