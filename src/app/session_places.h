#pragma once

#include <QString>

namespace vantor {

/// The address of the session's bus as the environment tells it, or of the socket where it usually
/// is; empty where there is none. Only what is reached through a socket of this machine: nothing
/// that would start a bus or another program, or go to a network.
QString sessionBusAddress();

/// A folder that the user alone may enter: the runtime folder of the session, else that of
/// temporary files where each user has one, else one that is made in it. Empty where none is to be
/// had.
QString privateRuntimeFolder();

/// What the program's windows are on, as the environment tells it; the screen number, which means
/// nothing for that, left out. Empty where there is no such thing.
QString displayName();

}  // namespace vantor
