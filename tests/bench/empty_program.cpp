// What rlx is measured against: a program that prints one line.
#include <cstdio>

int main() {
    std::puts("07:05:09  10/07/2026    Fri");
}
