#pragma once

// How many blocks this process has asked the C library for.
long allocations_so_far();
