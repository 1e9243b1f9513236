#pragma once

#include "VoIStream.h"
#include "VoOStream.h"

#pragma GCC visibility push(default)

// A stream that is both read and written.
class VoIOStream : public VoIStream, public VoOStream {};

#pragma GCC visibility pop
