// Has nothing of its own: it is what the precompiled headers of the tests are made for.
