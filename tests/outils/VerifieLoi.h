// The check of a motion law against its own derivatives.
#pragma once

#include "core/Etude.h"

#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <vector>

using LoiDeX = std::function<PointLoi(double)>;

/// Speed and acceleration are the derivatives of the lift (central differences of the fourth order), and lift, speed
/// and acceleration meet at every bound.
inline void VerifieLoi(const LoiDeX& loi, const std::vector<double>& bornes, double accelJoint = 1e-5) {
    constexpr double h = 4e-5;
    for (double x = 3 * h; x < 1 - 3 * h; x += 37.3 * h) {
        bool joint = false;
        for (const double b : bornes) joint = joint || std::abs(x - b) < 3 * h;
        if (joint) continue;
        const PointLoi m2 = loi(x - 2 * h), m1 = loi(x - h), p1 = loi(x + h), p2 = loi(x + 2 * h), p = loi(x);
        const double v = (m2.Course - 8 * m1.Course + 8 * p1.Course - p2.Course) / (12 * h);
        const double a = (m2.Vitesse - 8 * m1.Vitesse + 8 * p1.Vitesse - p2.Vitesse) / (12 * h);
        ASSERT_NEAR(v, p.Vitesse, 1e-6 * std::max(1.0, std::abs(p.Vitesse))) << x;
        ASSERT_NEAR(a, p.Accel, 1e-6 * std::max(1.0, std::abs(p.Accel))) << x;
    }
    for (const double b : bornes) {
        const PointLoi g = loi(b - 1e-10), d = loi(b + 1e-10);
        EXPECT_NEAR(g.Course, d.Course, 1e-8) << b;
        EXPECT_NEAR(g.Vitesse, d.Vitesse, 1e-7) << b;
        EXPECT_NEAR(g.Accel, d.Accel, accelJoint) << b;
    }
}
