#pragma once

#include "records/key_group_form.h"
#include "records/name_form.h"

/// Names a warehouse.
class frmAddWarehouse : public NameForm {
    Q_OBJECT
public:
    /// The warehouse to edit, NewRow for a new one. The form puts the id of a warehouse it added here.
    static qint32 CurrentWarehouseID;
    static const KeyTable& Table();

    explicit frmAddWarehouse(QWidget* parent);
};

/// Names a location. A new one goes into LocationWarehouseID; one that exists stays where it is.
class frmAddLocation : public NameForm {
    Q_OBJECT
public:
    /// The location to edit, NewRow for a new one. The form puts the id of a location it added here.
    static qint32 CurrentLocationID;
    /// The warehouse that a new location goes into.
    static qint32 LocationWarehouseID;
    static const KeyTable& Table();

    explicit frmAddLocation(QWidget* parent);

protected:
    void SetFields(AddRow& row) override;
};

/// Keeps the warehouses and the locations in them.
class frmLocations : public KeyGroupForm {
    Q_OBJECT
public:
    explicit frmLocations(QWidget* parent);

protected:
    qint64 ShowGroupDetails(qint64 id) override;
    void ShowEntryDetails(qint64 id, qint64 groupId) override;
};
