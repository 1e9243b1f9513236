#pragma once

#include "VoIStream.h"
#include "VoOStream.h"

// A stream that is both read and written.
class [[gnu::visibility("default")]] VoIOStream : public VoIStream, public VoOStream{};
