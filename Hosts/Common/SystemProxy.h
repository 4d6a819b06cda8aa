#pragma once

namespace Korvex::Hosts
{

/// Lets every connection of the process go through the proxy that the system names (on Linux `http_proxy`,
/// `https_proxy` and `no_proxy`), except to this machine itself. Once, in a program's main function.
void UseSystemProxy();

} // namespace Korvex::Hosts
