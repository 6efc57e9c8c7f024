#include "masters/name_source.h"

namespace veldrana {

void NameSource::prepare(const Stage& /*stage*/) {}

}  // namespace veldrana
