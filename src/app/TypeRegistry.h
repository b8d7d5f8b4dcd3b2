#pragma once

/// Makes the program's classes known to the scene.
namespace typeregistry {

/// Registers every type, each in a module of its own name, version 1.0, and the meta types between them. Call
/// once, before the scene is loaded.
void registerTypes();

} // namespace typeregistry
