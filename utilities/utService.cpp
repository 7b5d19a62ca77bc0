#include "utService.h"

#include <map>
#include <mutex>
#include <string>
#include <utility>

namespace
{
// The registry: the names in use and what is found under each.
class Registry
{
public:
  // Never destroyed: services may be asked for while static objects go away, in any order.
  static Registry& instance()
  {
    static Registry* const made = new Registry;
    return *made;
  }

  void put(std::string const& name, std::shared_ptr<utService> service)
  {
    // What is replaced goes when the lock is gone: its destructor may use the registry.
    std::shared_ptr<utService> replaced;
    std::lock_guard<std::mutex> const lock(guard);
    if (service == nullptr)
    {
      auto const found = services.find(name);
      if (found == services.end())
        return;
      replaced = std::move(found->second);
      services.erase(found);
      return;
    }
    replaced = std::exchange(services[name], std::move(service));
  }

  std::shared_ptr<utService> get(std::string const& name)
  {
    std::lock_guard<std::mutex> const lock(guard);
    auto const found = services.find(name);
    return found == services.end() ? nullptr : found->second;
  }

private:
  std::mutex guard;
  std::map<std::string, std::shared_ptr<utService>> services;
};
}

utService::utService() = default;

utService::~utService() = default;

utService* utService::get_instance()
{
  static utService* const made = new utService;
  return made;
}

void utService::register_service(utServiceName const& name, std::shared_ptr<utService> service)
{
  if (!name.invalid())
    Registry::instance().put(name.name().c_str(), std::move(service));
}

std::shared_ptr<utService> utService::do_locate_service(utServiceName const& name)
{
  return Registry::instance().get(name.name().c_str());
}
