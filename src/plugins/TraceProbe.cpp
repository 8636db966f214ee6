#include "plugins/TraceProbe.h"

#include "base/RuntimeError.h"
#include "engine/Engine.h"

namespace zub {
namespace {

// Every key can be opened and is empty.
class RecordingRegistry : public Registry {
 public:
  TraceTarget target;

  RegistryKey hive(Hive which) const override { return static_cast<RegistryKey>(which); }
  RegistryStatus open(RegistryKey parent, std::string_view path, std::uint32_t, RegistryKey& key) override {
    target.hive = static_cast<Hive>(parent);
    target.path = path;
    key = 1;
    return status::Success;
  }
  RegistryStatus create(RegistryKey, std::string_view, std::uint32_t, RegistryKey&) override {
    return status::AccessDenied;
  }
  RegistryStatus enumKey(RegistryKey, std::uint32_t, char*, std::uint32_t&) override {
    return status::NoMoreItems;
  }
  RegistryStatus enumValue(RegistryKey, std::uint32_t, char*, std::uint32_t&, std::uint32_t&, std::uint8_t*,
                           std::uint32_t&) override {
    return status::NoMoreItems;
  }
  RegistryStatus query(RegistryKey, std::string_view, std::uint32_t&, std::uint8_t*,
                       std::uint32_t&) override {
    return status::FileNotFound;
  }
  RegistryStatus set(RegistryKey, std::string_view, std::uint32_t, std::span<const std::uint8_t>) override {
    return status::AccessDenied;
  }
  RegistryStatus deleteValue(RegistryKey, std::string_view name) override {
    target.valueName = name;
    return status::Success;
  }
  RegistryStatus deleteKey(RegistryKey, std::string_view) override { return status::Success; }
  RegistryStatus close(RegistryKey) override { return status::Success; }
};

}  // namespace

struct TraceProbe::Laboratory {
  explicit Laboratory(const Platform& pc)
      : engine({pc.codePage, registry, pc.files, pc.drives, pc.folders, pc.restart, pc.shell, pc.clock,
                pc.process, pc.events, pc.messages, pc.tray, pc.tasks},
               options) {}

  RecordingRegistry registry;
  Options options;
  Engine engine;
};

TraceProbe::TraceProbe(const Platform& pc) : laboratory_(std::make_unique<Laboratory>(pc)) {}

TraceProbe::~TraceProbe() = default;

std::optional<TraceTarget> TraceProbe::target(const std::string& trace) {
  TraceTarget& target = laboratory_->registry.target;
  target = {};
  RegistryHelper helper(laboratory_->engine);
  try {
    helper.DeleteTrace(trace);
  } catch (const RuntimeError&) {
    return std::nullopt;
  }
  target.keyForm = helper.KeyMode;
  target.valueForm = helper.ValueMode;
  return target;
}

}  // namespace zub
