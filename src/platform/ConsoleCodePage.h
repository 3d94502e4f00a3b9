#pragma once

namespace platform {

/// Makes what the program writes to a console appear as UTF-8; nothing to do where consoles are so anyway.
void useUtf8Console();

} // namespace platform
