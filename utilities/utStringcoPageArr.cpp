#include <utStringcoPageArr.h>

template class coPageArr<utString>;
