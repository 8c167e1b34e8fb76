#pragma once

namespace velmora {

class Appearance;
class Workspace;

/// What the module over GIO hands out; the services live as long as the process.
struct GioServices {
    const char* version; ///< of the program that the module belongs to
    Appearance& appearance;
    Workspace& workspace;
};

/// The module's only symbol, a GioServicesFunction. Main thread or not, the same answer each time.
constexpr char gioServicesSymbol[] = "velmoraGioServices";
using GioServicesFunction = const GioServices& (*)();

} // namespace velmora
