// What the C++ library does where an exception has no one to catch it. Its own handler would name the exception, by a
// decoder of names that is larger than most rooms; the programs tell what happened before it comes so far.
#include <cstdlib>
#include <exception> // which declares it

namespace __gnu_cxx {

void __verbose_terminate_handler() {
    std::abort();
}

} // namespace __gnu_cxx
