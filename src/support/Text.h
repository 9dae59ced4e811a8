// The text types of the program and its one exception.
//
// A text of the program's own has 16-bit units; columns of the exchange file are views of their own, see Feldsicht.h.
// UTF-8 exists only at the edges: paths, the command line, the output file.
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
