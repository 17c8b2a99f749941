#pragma once

/// Closes the network to all pages of the web engine, whatever runs in them. Called once, before the
/// application object is made. Flags that the environment gives stay in force beside these.
void closeWebEngineNetwork();
