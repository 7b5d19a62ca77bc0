#include <apITarnFilecoPrf.h>

template class coPrf<apITarnFile>;
