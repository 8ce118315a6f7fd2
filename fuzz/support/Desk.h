#pragma once

namespace tessel::fuzz {

/// Makes the one application that models and boxes need, without a display, and keeps Qt's log quiet. To be
/// called before each input; does its work once. The application lives as long as the program.
void openDesk();

} // namespace tessel::fuzz
