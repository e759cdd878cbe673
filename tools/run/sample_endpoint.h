#pragma once

#include "core/registry.h"
#include "loopback_server.h"

namespace morvane {

/// A registry that names a server of our own, on the loopback, as the weather service; the server has the
/// sample cycle. All other values are those of `real`, which keeps its own service.
class SampleEndpoint : public Registry {
public:
    explicit SampleEndpoint(Registry& real);

    QString address() const { return server_.address(); }

    QString GetRegString(int root, const QString& key, const QString& name,
                         const QString& machine = {}) const override;
    void SetRegString(int root, const QString& key, const QString& name, const QString& text,
                      const QString& machine = {}) override;
    bool RegValueIsDword(int root, const QString& key, const QString& name,
                         const QString& machine = {}) const override;
    bool hasValue(int root, const QString& key, const QString& name) const override;
    bool CreateRegKey(int root, const QString& key) override;

private:
    Registry& real_;
    LoopbackServer server_;
};

} // namespace morvane
