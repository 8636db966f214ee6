#include "platform/folder/RegistryTree.h"

namespace zub {
namespace {

// Takes the part before the first backslash off the path.
std::string_view takePart(std::string_view& path) {
  const auto end = path.find('\\');
  const std::string_view part = path.substr(0, end);
  path.remove_prefix(end == std::string_view::npos ? path.size() : end + 1);
  return part;
}

}  // namespace

bool RegistryNode::canHold(std::string_view childName) const {
  using namespace std::string_view_literals;
  return !childName.empty() && childName.size() <= LongestName && depth < Deepest &&
         childName.find_first_of("\\\r\n\0"sv) == std::string_view::npos;
}

RegistryNode& RegistryNode::child(std::string_view childName) {
  auto& slot = keys[childName];
  if (!slot) {
    slot = std::make_unique<RegistryNode>();
    slot->name = childName;
    slot->parent = this;
    slot->depth = depth + 1;
  }
  return *slot;
}

std::string RegistryNode::path() const {
  return parent == nullptr ? name : parent->path() + "\\" + name;
}

RegistryTree::RegistryTree() {
  for (std::size_t i = 0; i < hives_.size(); ++i) {
    hives_[i] = std::make_unique<RegistryNode>();
    hives_[i]->name = HiveNames[i].name;
  }
}

RegistryNode* RegistryTree::hive(std::string_view name) {
  for (const auto& node : hives_) {
    if (equalFolded(node->name, name)) return node.get();
  }
  return nullptr;
}

RegistryNode* RegistryTree::find(std::string_view path) {
  RegistryNode* node = hive(takePart(path));
  while (node != nullptr && !path.empty()) node = node->find(takePart(path));
  return node;
}

RegistryNode* RegistryTree::make(std::string_view path) {
  RegistryNode* node = hive(takePart(path));
  while (node != nullptr && !path.empty()) {
    const std::string_view part = takePart(path);
    node = node->canHold(part) ? &node->child(part) : nullptr;
  }
  return node;
}

}  // namespace zub
