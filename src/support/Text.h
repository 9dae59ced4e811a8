// The text types of the program and its one exception.
//
// One column of a record is one 16-bit unit, everywhere in the core. Bytes and UTF-8 exist only at the edges: paths,
// the command line, the exchange file's bytes, the output file.
#pragma once

#include <cstdint>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>

namespace zepholt {

using Text = std::u16string;
using TextSicht = std::u16string_view;
using ByteSicht = std::span<const unsigned char>;

// A run-time failure of a conversion or of a file operation. It is caught exactly where a failure is defined to be
// caught; uncaught, it ends the run without a protocol.
class LaufzeitFehler : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

} // namespace zepholt
