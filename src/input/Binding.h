#pragma once

#include <QProperty>
#include <memory>

namespace velmora {

/// A value that an editor and its controls share, two-way and observable. Shared ownership: an
/// editor's members are gone before its child controls, which still let go of the focus then.
template<typename Value>
using Binding = std::shared_ptr<QProperty<Value>>;

} // namespace velmora
