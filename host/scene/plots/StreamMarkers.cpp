#include "host/scene/plots/StreamMarkers.h"

#include "host/scene/geometry/StreamTraces.h"

#include <vtkCellArray.h>
#include <vtkCellArrayIterator.h>
#include <vtkDataArray.h>
#include <vtkPointData.h>
#include <vtkPoints.h>

#include <algorithm>
#include <array>
#include <cmath>

namespace corvane::scene {

namespace {

constexpr double mostMarkers = 20000.0;

template <typename Function>
void forEachLine(vtkPolyData& traces, const Function& function) {
    const auto line = vtk::TakeSmartPointer(traces.GetLines()->NewIterator());
    for (line->GoToFirstCell(); !line->IsDoneWithTraversal(); line->GoToNextCell()) {
        vtkIdType count = 0;
        const vtkIdType* points = nullptr;
        line->GetCurrentCell(count, points);
        function(points, count);
    }
}

/// The interval that is used: a multiple of the one requested.
double thinned(vtkPolyData& traces, vtkDataArray& times, double interval) {
    double total = 0.0;
    forEachLine(traces, [&](const vtkIdType* points, vtkIdType count) {
        total += std::abs(times.GetTuple1(points[count - 1]) - times.GetTuple1(points[0]));
    });
    return interval * std::max(1.0, std::ceil(total / interval / mostMarkers));
}

class MarkerSetter {
public:
    MarkerSetter(vtkPolyData& traces, vtkDataArray& times, double anchor, double interval)
        : m_traces(traces),
          m_times(times),
          m_interval(thinned(traces, times, interval)),
          m_anchor(std::fmod(anchor, m_interval)) {
        m_markers->SetPoints(vtkSmartPointer<vtkPoints>::New());
        m_markers->GetPointData()->InterpolateAllocate(traces.GetPointData());
    }

    vtkSmartPointer<vtkPolyData> run() {
        forEachLine(m_traces, [this](const vtkIdType* points, vtkIdType count) {
            for (vtkIdType i = 1; i < count; ++i) {
                addBetween(points[i - 1], points[i]);
            }
        });
        return m_markers;
    }

private:
    /// The later end belongs to the next segment of the line.
    void addBetween(vtkIdType a, vtkIdType b) {
        const double timeA = m_times.GetTuple1(a);
        const double timeB = m_times.GetTuple1(b);
        const double from = std::min(timeA, timeB);
        const double to = std::max(timeA, timeB);
        if (!std::isfinite(to - from)) {
            return;
        }
        for (double k = std::ceil((from - m_anchor) / m_interval);; k += 1.0) {
            const double time = m_anchor + k * m_interval;
            if (!(time < to)) {
                return;
            }
            add(a, b, (time - timeA) / (timeB - timeA));
        }
    }

    void add(vtkIdType a, vtkIdType b, double part) {
        std::array<double, 3> pointA{};
        std::array<double, 3> pointB{};
        m_traces.GetPoint(a, pointA.data());
        m_traces.GetPoint(b, pointB.data());
        for (std::size_t c = 0; c < 3; ++c) {
            pointA[c] += part * (pointB[c] - pointA[c]);
        }
        const vtkIdType id = m_markers->GetPoints()->InsertNextPoint(pointA.data());
        m_markers->GetPointData()->InterpolateEdge(m_traces.GetPointData(), id, a, b, part);
    }

    vtkPolyData& m_traces;
    vtkDataArray& m_times;
    double m_interval;
    double m_anchor; ///< less than one interval from 0, for precision
    vtkSmartPointer<vtkPolyData> m_markers = vtkSmartPointer<vtkPolyData>::New();
};

} // namespace

vtkSmartPointer<vtkPolyData> markersOn(vtkPolyData& traces, double anchor, double interval) {
    vtkDataArray* const times = traces.GetPointData()->GetArray(integrationTimeName);
    if (times == nullptr) {
        return vtkSmartPointer<vtkPolyData>::New();
    }
    return MarkerSetter(traces, *times, anchor, interval).run();
}

} // namespace corvane::scene
