#include "SilentScope.h"

namespace orvex {

namespace {

// Widgets live on one thread.
int s_depth = 0;

} // namespace

SilentScope::SilentScope(QObject* widget) : m_blocker(widget) {
    ++s_depth;
}

SilentScope::~SilentScope() {
    --s_depth;
}

bool SilentScope::isActive() {
    return s_depth > 0;
}

} // namespace orvex
