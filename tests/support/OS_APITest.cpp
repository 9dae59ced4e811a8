#include "support/OS_API.h"

#include "support/HilfsFunktionen.h"

#include <gtest/gtest.h>

namespace zepholt {
namespace {

TEST(OrdnerExistiert, LeererPfad) {
    EXPECT_FALSE(OrdnerExistiert(u""));
    EXPECT_FALSE(DateiExistiert(u""));
}

} // namespace
} // namespace zepholt
