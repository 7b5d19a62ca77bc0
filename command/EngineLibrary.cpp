#include "EngineLibrary.h"

#include <filesystem>

#if defined(_WIN32)
#  include <windows.h>
#else
#  include <dlfcn.h>
#endif

namespace
{
using Register = void (*)();

char const entry[] = "axm_register_engine";

// A file is meant by its path, wherever the system would look for a library of that name.
std::string path_of(std::string const& name)
{
  std::error_code ignored;
  std::filesystem::path const path = std::filesystem::u8path(name);
  return std::filesystem::exists(path, ignored) ? std::filesystem::absolute(path).u8string() : name;
}

#if defined(_WIN32)
Register find_entry(std::string const& path, std::string& error)
{
  HMODULE const library = LoadLibraryW(apString(path.c_str()).c_str());
  if (library == nullptr)
  {
    error = "the library cannot be loaded (system error " + std::to_string(GetLastError()) + ")";
    return nullptr;
  }
  auto const found = reinterpret_cast<Register>(reinterpret_cast<void*>(GetProcAddress(library, entry)));
  if (found == nullptr)
    error = std::string("the library does not export ") + entry;
  return found;
}
#else
Register find_entry(std::string const& path, std::string& error)
{
  void* const library = dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL);
  if (library == nullptr)
  {
    error = dlerror();
    return nullptr;
  }
  auto const found = reinterpret_cast<Register>(dlsym(library, entry));
  if (found == nullptr)
    error = std::string("the library does not export ") + entry;
  return found;
}
#endif
}

std::shared_ptr<axmDocumentFactory> EngineLibrary::load(std::string const& name, std::string& error)
{
  Register const register_engine = find_entry(path_of(name), error);
  if (register_engine == nullptr)
    return nullptr;
  utServiceName const service(ut_lit("XMLService"));
  utService::get_instance()->register_service(service, nullptr);
  register_engine();
  utServiceName resolved;
  std::shared_ptr<axmDocumentFactory> factory = utService::locate_service<axmDocumentFactory>(service, resolved);
  if (factory == nullptr)
    error = "the library registers no factory under XMLService";
  return factory;
}
