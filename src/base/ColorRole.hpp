#pragma once

namespace quorvane {

// The interface's colours by what they mean. Each platform draws them with its own system
// colours, so they follow the light and dark appearance and the user's accent colour.
enum class ColorRole { label, secondaryLabel, tertiaryLabel, accent, green, orange, red };

}  // namespace quorvane
