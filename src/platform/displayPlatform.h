// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

/// Which window system the program talks to.
namespace displayPlatform
{

/// Before the application object is made: in a Wayland session that offers X11 too, X11 is asked for, because only
/// there places, staying on top and moving by hand work. A platform that the user has set is left alone.
void preferX11();
/// After the application object is made: undoes what preferX11 put into the environment of child processes.
void forgetPreference();
/// True where the platform keeps places to itself: they are then neither set nor stored.
bool hidesPlaces();
/// True where the program runs as an X11 program in a Wayland session.
bool isX11InWayland();

} // namespace displayPlatform
