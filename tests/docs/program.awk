# Makes one program of the C++ blocks of a page: includes first, all else in main, in the page's
# order. What the compiler says about a line is said about the page's.

/^```/ {
  inside = $0 == "```cpp"
  if (inside) body = body "#line " FNR + 1 " \"" FILENAME "\"\n"
  next
}
!inside { next }
/^#include/ { print; body = body "\n"; next }
{ body = body $0 "\n" }

END { print "int main() {\n" body "}" }
