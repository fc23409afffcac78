#pragma once
// Where users find Velmora and write to it: set here once for the whole program.

inline constexpr const char* kHomePage = "https://velmora.org";
inline constexpr const char* kSupportAddress = "support@velmora.org";
