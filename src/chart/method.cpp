#include "chart/method.h"

namespace tolvanis {

Method MethodOfOptions(const Options& options) {
    constexpr int kHouseSystemOption = 27;
    return {HouseSystemOfOption(options[kHouseSystemOption]), TheoryOfOption(options[kTheoryOption])};
}

}  // namespace tolvanis
