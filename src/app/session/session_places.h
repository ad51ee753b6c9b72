#pragma once

#include <QString>

namespace vantor {

/// The address of the session's bus from the environment, or of its usual socket; empty where there
/// is none. Only what is reached through a socket of this machine: nothing
/// that would start a bus or another program, or go to a network.
QString sessionBusAddress();

/// A folder that the user alone may enter: the runtime folder of the session, else that of
/// temporary files where each user has one, else one that is made in it. Empty where there is
/// none.
QString privateRuntimeFolder();

/// The display of the program's windows, from the environment, without the screen number, which
/// does not matter for that. Empty where there is none.
QString displayName();

}  // namespace vantor
