#include "toolkit/base/system.h"

#include <utility>

namespace toolkit {
namespace {

SystemSource& source() {
    static SystemSource current = thisSystem();
    return current;
}

} // namespace

std::string systemVersion() { return source().version(); }

MemoryFacts memoryFacts() { return source().memory(); }

MemoryUsage memoryUsage() { return source().usage(); }

void overrideSystem(SystemSource inPlace) {
    source() = thisSystem();
    if (inPlace.version) source().version = std::move(inPlace.version);
    if (inPlace.memory) source().memory = std::move(inPlace.memory);
    if (inPlace.usage) source().usage = std::move(inPlace.usage);
}

} // namespace toolkit
