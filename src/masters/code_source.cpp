#include "masters/code_source.h"

namespace veldrana {

void CodeSource::prepare(const Stage& /*stage*/) {}

}  // namespace veldrana
