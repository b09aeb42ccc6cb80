#include "work.h"

namespace tavo::bench {

void Pictures_Measure(Plan&) {}

} // namespace tavo::bench
