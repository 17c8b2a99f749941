#pragma once

/// The web engine, which the hidden page needs. In a build without it both do nothing.
namespace WebEngine
{
/// Called once, before the application object is made. Closes the network to all pages, whatever runs in them, where
/// there is a page at all; flags that the environment gives stay in force beside these.
void prepare(bool hasPage);
/// Called once, when the application object is there.
void initialize();
} // namespace WebEngine
