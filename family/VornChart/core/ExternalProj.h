#pragma once

#include "family/VornChart/core/Export.h"
#include "family/VornChart/core/Projection.h"
#include "framework/core/BaseTypes.h"

#include <array>
#include <memory>

#ifndef _WIN32
using FARPROC = int (*)();
#endif

/// A projection that forwards to a plug-in module, as include/vornplugin.h describes it. Entry points that the module
/// lacks have harmless answers: nothing to set, nothing to show, LLtoXY() and its like refuse.
///
/// The object owns the module's projection, and holds the module itself from the first entry point that is bound: it
/// stays usable when the registry has let the module go.
class VORNCHART_API ExternalProj : public Projection
{
public:
    /// How many entry points there are to bind.
    static constexpr int kEntryPoints = 31;

    /// @param handle the projection as the module's CreateProjection returned it; it becomes this object's.
    explicit ExternalProj(unsigned long handle, int = 0, int = 0);
    ExternalProj(const ExternalProj&) = delete;
    ExternalProj& operator=(const ExternalProj&) = delete;

    /// Ends the module's projection through DestroyProjection.
    ~ExternalProj() override;

    /// The name by which a module exports entry point @p index (0 InitProjection ... 30 ScaleError); null for others.
    static const char* EntryPointName(int index);

    /// Binds an entry point; null when the module has none. A number that there is not changes nothing.
    void Bind(int index, FARPROC entry);

    /// The module's InitProjection; true when it has none.
    bool Init() override;

    const char* QueryProjectionName() const override;
    bool ReadWrite(char*& cursor, unsigned long& remaining, bool read) override;
    void GetCenterLatLon(double& lat, double& lon) const override;
    void Skew(double& x, double& y) const override;
    void UnSkew(double& x, double& y) const override;
    double GetSkew() const override;
    void SetSkew(double degrees) override;
    void OffsetSkew(double degrees) override;
    bool LLtoXY(double lat, double lon, double& x, double& y) const override;
    bool XYtoLL(double x, double y, double& lat, double& lon) const override;
    Projection* Clone() const override;
    void MinMaxMapXY(double& minX, double& minY, double& maxX, double& maxY) const override;
    bool SetMapPole(double lat, double lon) override;
    bool PanTo(double lat, double lon) override;
    bool CenterMapXY(double& x, double& y) const override;
    bool IsCylindrical() const override;
    bool IsConic() const override;
    bool IsConformal() const override;
    bool IsZoomable() const override;
    bool Is3D() const override;
    int NumParams() const override;
    const char* ParamName(int index) const override;
    double GetParamValue(int index) const override;
    bool SetParamValue(int index, double value) override;
    unsigned long BackgroundColor() const override;
    int NMapLimitPts() const override;
    bool MapLimitPt(int index, double& x, double& y) const override;
    double ScaleMult(double lat, double lon) const override;
    double ScaleError(double lat, double lon) const override;

private:
    unsigned long m_handle;
    std::array<FARPROC, kEntryPoints> m_entries{};
    std::shared_ptr<void> m_module;
};
