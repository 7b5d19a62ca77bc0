#pragma once

#include "utExport.h"
#include "utServiceName.h"

#include <memory>

/// A service that a program can find at run time by name, and the registry in which it is found.
///
/// get_instance() is the process-wide registry; it shares the ownership of what is registered with it until another
/// service takes the name. Any other object of a derived class is a service; as a registry it passes every call on to
/// the process-wide one. Registering and locating are safe from several threads at once.
/// The order of the virtual operations is a promise to separately built services.
class UT_API utService
{
public:
  utService();
  utService(utService const&) = delete;
  utService& operator=(utService const&) = delete;

  /// The process-wide registry. It is made at the first call and lives as long as the process, so that services may be
  /// located while static objects are destroyed.
  static utService* get_instance();

  /// Makes `service` the one that is found under `name`, instead of any earlier one; an empty pointer takes the name out
  /// of the registry. An invalid name changes nothing. Throws std::bad_alloc when memory runs out; nothing is changed.
  virtual void register_service(utServiceName const& name, std::shared_ptr<utService> service);

  virtual ~utService();

  /// The service of class T that is found under `name` or, qualifier after qualifier being taken away from the left,
  /// under what is left of it; a service of another class is passed over. Empty if there is none or `name` is invalid.
  /// On return `resolved` is the name under which the service was found, and invalid if there was none.
  /// Throws std::bad_alloc when memory runs out, with `resolved` as it was.
  template <class T>
  static std::shared_ptr<T> locate_service(utServiceName const& name, utServiceName& resolved);

protected:
  /// The service registered under exactly `name`, empty if there is none.
  virtual std::shared_ptr<utService> do_locate_service(utServiceName const& name);
};

template <class T>
std::shared_ptr<T> utService::locate_service(utServiceName const& name, utServiceName& resolved)
{
  // A copy first: the caller may hand in one object as both.
  utServiceName current(name);
  std::shared_ptr<T> found;
  while (!current.invalid() && !(found = std::dynamic_pointer_cast<T>(get_instance()->do_locate_service(current))))
    current.dequalify();
  resolved = current;
  return found;
}
