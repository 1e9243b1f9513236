#pragma once

namespace orvex {

class ProfileStore;

// The profile store in use.
ProfileStore& currentStore();

} // namespace orvex
