#pragma once

namespace rlx {

/// The size of the news page's text, 0 to 4, and the two squares in the bottom-right corner that change it.
class CNewsZoom {
public:
    static constexpr int kLeast = 0;
    static constexpr int kMost = 4;
    static constexpr int kInitial = 2;

    explicit CNewsZoom(int level = kInitial);

    int Level() const { return m_level; }

    /// A tap at (x, y) in a view whose right and bottom edges are given, all in pixels. The plus square lies in the
    /// corner, the minus square left of it; border lines belong to neither. Returns the level, which is sent to the
    /// viewer in every case.
    int Tap(int x, int y, int right, int bottom);

private:
    int m_level;
};

}  // namespace rlx
