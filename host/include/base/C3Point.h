#pragma once

// A point of the general geometry layer, read through accessors.
class C3Point {
public:
    C3Point() = default;
    C3Point(double x, double y, double z) : m_x(x), m_y(y), m_z(z) {}
    explicit C3Point(const double* xyz) : m_x(xyz[0]), m_y(xyz[1]), m_z(xyz[2]) {}

    [[nodiscard]] double X() const { return m_x; }
    [[nodiscard]] double Y() const { return m_y; }
    [[nodiscard]] double Z() const { return m_z; }

private:
    double m_x = 0.0;
    double m_y = 0.0;
    double m_z = 0.0;
};
