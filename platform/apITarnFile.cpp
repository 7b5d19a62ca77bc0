#include "apITarnFile.h"

apITarnFile::apITarnFile() = default;
apITarnFile::~apITarnFile() = default;
