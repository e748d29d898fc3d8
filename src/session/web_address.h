#pragma once

namespace lp {

// The program's web address, as the messages and the toolbar's name give it.
inline constexpr char16_t kWebAddress[] = u"https://lumenpad.example";

}  // namespace lp
