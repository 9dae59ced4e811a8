#include "support/Namensmuster.h"

namespace zepholt {

// One place to come back to is enough: a later '*' takes over all that an earlier one could still give.
bool PasstZuMuster(TextSicht name, TextSicht muster) {
    if (name.starts_with(u'.') && !muster.starts_with(u'.')) {
        return false;
    }
    std::size_t n = 0;
    std::size_t m = 0;
    std::size_t sternMuster = TextSicht::npos; // behind the last '*' met
    std::size_t sternName = 0;                 // as far as that '*' reaches
    while (n < name.size()) {
        if (m < muster.size() && muster[m] == u'*') {
            sternMuster = ++m;
            sternName = n;
        } else if (m < muster.size() && (muster[m] == u'?' || muster[m] == name[n])) {
            ++n;
            ++m;
        } else if (sternMuster != TextSicht::npos) {
            n = ++sternName;
            m = sternMuster;
        } else {
            return false;
        }
    }
    return muster.find_first_not_of(u'*', m) == TextSicht::npos;
}

} // namespace zepholt
