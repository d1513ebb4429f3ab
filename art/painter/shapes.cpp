#include "painter/shapes.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numbers>
#include <stdexcept>
#include <utility>

namespace vandrel::art {
namespace {

float segmentShare(float x, float y, float x0, float y0, float x1, float y1) {
    const float dx = x1 - x0;
    const float dy = y1 - y0;
    const float lengthSquared = dx * dx + dy * dy;
    if (lengthSquared <= 0.0f) {
        return 0.0f;
    }
    return std::clamp(((x - x0) * dx + (y - y0) * dy) / lengthSquared, 0.0f, 1.0f);
}

float polygonDistance(const std::vector<Point>& points, float x, float y) {
    float nearest = std::numeric_limits<float>::max();
    bool inside = false;
    for (std::size_t i = 0, j = points.size() - 1; i < points.size(); j = i++) {
        const Point a = points[j];
        const Point b = points[i];
        const float share = segmentShare(x, y, a.x, a.y, b.x, b.y);
        nearest = std::min(nearest, std::hypot(x - (a.x + (b.x - a.x) * share), y - (a.y + (b.y - a.y) * share)));
        if ((a.y > y) != (b.y > y) && x < a.x + (b.x - a.x) * (y - a.y) / (b.y - a.y)) {
            inside = !inside;
        }
    }
    return inside ? -nearest : nearest;
}

// Widens the shape's bounds so that they hold these, too.
void enclose(Shape& shape, float left, float top, float right, float bottom) {
    shape.left = std::min(shape.left, left);
    shape.top = std::min(shape.top, top);
    shape.right = std::max(shape.right, right);
    shape.bottom = std::max(shape.bottom, bottom);
}

}  // namespace

Shape circle(float x, float y, float radius) {
    return {[=](float px, float py) { return std::hypot(px - x, py - y) - radius; }, x - radius, y - radius, x + radius,
            y + radius};
}

Shape ellipse(float x, float y, float radiusX, float radiusY) {
    return {[=](float px, float py) {
                const float nx = (px - x) / radiusX;
                const float ny = (py - y) / radiusY;
                const float unit = std::hypot(nx, ny);
                const float slope = std::hypot(nx / radiusX, ny / radiusY);
                return slope <= 0.0f ? -std::min(radiusX, radiusY) : unit * (unit - 1.0f) / slope;
            },
            x - radiusX, y - radiusY, x + radiusX, y + radiusY};
}

Shape roundedBox(float x, float y, float halfWidth, float halfHeight, float corner) {
    return {[=](float px, float py) {
                const float qx = std::fabs(px - x) - halfWidth + corner;
                const float qy = std::fabs(py - y) - halfHeight + corner;
                return std::hypot(std::max(qx, 0.0f), std::max(qy, 0.0f)) + std::min(std::max(qx, qy), 0.0f) - corner;
            },
            x - halfWidth, y - halfHeight, x + halfWidth, y + halfHeight};
}

Shape rectangle(float left, float top, float width, float height, float corner) {
    return roundedBox(left + width / 2, top + height / 2, width / 2, height / 2, corner);
}

Shape capsule(float x0, float y0, float x1, float y1, float radius) {
    return taper(x0, y0, x1, y1, radius, radius);
}

Shape taper(float x0, float y0, float x1, float y1, float radius0, float radius1) {
    const float most = std::max(radius0, radius1);
    return {[=](float px, float py) {
                const float share = segmentShare(px, py, x0, y0, x1, y1);
                return std::hypot(px - (x0 + (x1 - x0) * share), py - (y0 + (y1 - y0) * share)) -
                       (radius0 + (radius1 - radius0) * share);
            },
            std::min(x0, x1) - most, std::min(y0, y1) - most, std::max(x0, x1) + most, std::max(y0, y1) + most};
}

Shape polygon(std::vector<Point> points) {
    if (points.size() < 3) {
        throw std::invalid_argument("A polygon needs at least three points");
    }
    Shape shape{nullptr, points[0].x, points[0].y, points[0].x, points[0].y};
    for (const Point& point : points) {
        enclose(shape, point.x, point.y, point.x, point.y);
    }
    shape.distance = [corners = std::move(points)](float x, float y) { return polygonDistance(corners, x, y); };
    return shape;
}

Shape polyline(const std::vector<Point>& points, float radius) {
    if (points.size() < 2) {
        throw std::invalid_argument("A line needs at least two points");
    }
    std::vector<Shape> parts;
    for (std::size_t i = 1; i < points.size(); ++i) {
        parts.push_back(capsule(points[i - 1].x, points[i - 1].y, points[i].x, points[i].y, radius));
    }
    return uniteAll(std::move(parts));
}

Shape curve(const std::vector<Point>& points, float radius) {
    constexpr int stepsPerSpan = 8;
    const auto pick = [&](std::ptrdiff_t index) {
        return points[static_cast<std::size_t>(
            std::clamp<std::ptrdiff_t>(index, 0, static_cast<std::ptrdiff_t>(points.size()) - 1))];
    };
    std::vector<Point> smooth;
    for (std::ptrdiff_t span = 0; span + 1 < static_cast<std::ptrdiff_t>(points.size()); ++span) {
        const Point before = pick(span - 1), from = pick(span), to = pick(span + 1), after = pick(span + 2);
        const auto along = [](float a, float b, float c, float d, float t) {
            return 0.5f *
                   (2 * b + (c - a) * t + (2 * a - 5 * b + 4 * c - d) * t * t + (3 * b - a - 3 * c + d) * t * t * t);
        };
        for (int step = 0; step < stepsPerSpan; ++step) {
            const float t = static_cast<float>(step) / stepsPerSpan;
            smooth.push_back({along(before.x, from.x, to.x, after.x, t), along(before.y, from.y, to.y, after.y, t)});
        }
    }
    if (!points.empty()) {
        smooth.push_back(points.back());
    }
    return polyline(smooth, radius);
}

Shape star(float x, float y, int spikes, float outer, float inner, float angle) {
    std::vector<Point> points;
    for (int i = 0; i < spikes * 2; ++i) {
        const float turn = angle + static_cast<float>(i) * std::numbers::pi_v<float> / static_cast<float>(spikes);
        const float radius = i % 2 == 0 ? outer : inner;
        points.push_back({x + radius * std::cos(turn), y + radius * std::sin(turn)});
    }
    return polygon(std::move(points));
}

Shape unite(Shape a, Shape b) {
    const float left = std::min(a.left, b.left), top = std::min(a.top, b.top);
    const float right = std::max(a.right, b.right), bottom = std::max(a.bottom, b.bottom);
    return {[first = std::move(a.distance), second = std::move(b.distance)](float x, float y) {
                return std::min(first(x, y), second(x, y));
            },
            left, top, right, bottom};
}

Shape uniteAll(std::vector<Shape> shapes) {
    if (shapes.empty()) {
        throw std::invalid_argument("A union needs at least one shape");
    }
    Shape result{nullptr, shapes[0].left, shapes[0].top, shapes[0].right, shapes[0].bottom};
    for (const Shape& shape : shapes) {
        enclose(result, shape.left, shape.top, shape.right, shape.bottom);
    }
    result.distance = [parts = std::move(shapes)](float x, float y) {
        float nearest = std::numeric_limits<float>::max();
        for (const Shape& part : parts) {
            nearest = std::min(nearest, part.distance(x, y));
        }
        return nearest;
    };
    return result;
}

Shape blendUnite(Shape a, Shape b, float softness) {
    Shape result = unite(a, b);
    result.left -= softness;
    result.top -= softness;
    result.right += softness;
    result.bottom += softness;
    result.distance = [first = std::move(a.distance), second = std::move(b.distance), softness](float x, float y) {
        const float near = first(x, y), far = second(x, y);
        const float overlap = std::max(softness - std::fabs(near - far), 0.0f) / softness;
        return std::min(near, far) - overlap * overlap * softness * 0.25f;
    };
    return result;
}

Shape subtract(Shape from, Shape what) {
    return {[first = std::move(from.distance), second = std::move(what.distance)](float x, float y) {
                return std::max(first(x, y), -second(x, y));
            },
            from.left, from.top, from.right, from.bottom};
}

Shape intersect(Shape a, Shape b) {
    const float left = std::max(a.left, b.left), top = std::max(a.top, b.top);
    const float right = std::min(a.right, b.right), bottom = std::min(a.bottom, b.bottom);
    return {[first = std::move(a.distance), second = std::move(b.distance)](float x, float y) {
                return std::max(first(x, y), second(x, y));
            },
            left, top, right, bottom};
}

Shape grown(Shape shape, float by) {
    return {[inner = std::move(shape.distance), by](float x, float y) { return inner(x, y) - by; }, shape.left - by,
            shape.top - by, shape.right + by, shape.bottom + by};
}

Shape moved(Shape shape, float dx, float dy) {
    return {[inner = std::move(shape.distance), dx, dy](float x, float y) { return inner(x - dx, y - dy); },
            shape.left + dx, shape.top + dy, shape.right + dx, shape.bottom + dy};
}

Shape rotated(Shape shape, float aboutX, float aboutY, float radians) {
    const float cosine = std::cos(radians), sine = std::sin(radians);
    Shape result{nullptr, std::numeric_limits<float>::max(), std::numeric_limits<float>::max(),
                 std::numeric_limits<float>::lowest(), std::numeric_limits<float>::lowest()};
    for (const float cornerX : {shape.left, shape.right}) {
        for (const float cornerY : {shape.top, shape.bottom}) {
            const float x = aboutX + (cornerX - aboutX) * cosine - (cornerY - aboutY) * sine;
            const float y = aboutY + (cornerX - aboutX) * sine + (cornerY - aboutY) * cosine;
            enclose(result, x, y, x, y);
        }
    }
    result.distance = [inner = std::move(shape.distance), aboutX, aboutY, cosine, sine](float x, float y) {
        return inner(aboutX + (x - aboutX) * cosine + (y - aboutY) * sine,
                     aboutY - (x - aboutX) * sine + (y - aboutY) * cosine);
    };
    return result;
}

Shape ring(Shape shape, float thickness) {
    const float half = thickness / 2;
    return {[inner = std::move(shape.distance), half](float x, float y) { return std::fabs(inner(x, y)) - half; },
            shape.left - half, shape.top - half, shape.right + half, shape.bottom + half};
}

}  // namespace vandrel::art
