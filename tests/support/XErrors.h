#pragma once

namespace velmora::test {

/// From now on a test fails in which the X server refuses a request, of Qt or ours, that nobody
/// expected to be refused. The application object must not be there yet.
void failOnXErrors();

} // namespace velmora::test
