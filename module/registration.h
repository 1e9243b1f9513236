#pragma once

// Gives the host the module's service and commands, and takes them back. Safe to call twice:
// commands of the same name are replaced.
void initApp();
void unloadApp();
