#include "diary/cDiaryRecurring.h"

namespace orbidex {

cDiaryRecurring glbRecurring;

}  // namespace orbidex
