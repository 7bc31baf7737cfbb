# Shows Doxygen the plain comments of a header: the first one is about the file, one behind code is
# about that code, any other is about what follows it. Indented lines are examples.

/^#pragma once/ { print; getline; print "/// \\file"; next }

/^ *\/\// { sub(/\/\//, "///"); sub(/\/\/\/   /, "///       "); print; next }

{ sub(/  \/\/ /, "  ///< "); print }
