#pragma once

#include <apPath.h>

#include <memory>
#include <string>

class axsSource;

/// The files that a document refers to: regular ones of this computer. Safe from several threads at once.
namespace axsLocalFile
{
/// Opens the file. Throws axsReadError where it is not there, cannot be read, or is no regular file, as folders, pipes and
/// devices are; std::bad_alloc when memory runs out.
std::unique_ptr<axsSource> open(apPath const& file);

/// A text that is the same for all paths, links included, that name one file, and another one for each other file, as long
/// as they are there. Of what is not there, the path itself.
std::string identity(apPath const& file);
}
