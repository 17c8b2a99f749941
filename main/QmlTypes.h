#pragma once

/// Registers what the screens use, as the QML module "Morvi.kess" 1.0. Called once, before the
/// engine is made; the engine makes a singleton on its first use.
void registerQmlTypes();
