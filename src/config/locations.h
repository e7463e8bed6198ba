#pragma once

#include "records/key_group_form.h"
#include "records/name_form.h"

/// What the forms below edit, NewRow for a new one; a form puts the id of a row that it added here.
extern qint32 CurrentWarehouseID;
extern qint32 CurrentLocationID;
/// The warehouse that a new location goes into.
extern qint32 LocationWarehouseID;

/// Names a warehouse.
class frmAddWarehouse : public NameForm {
public:
    explicit frmAddWarehouse(QWidget* parent);
};

/// Names a location. A new one goes into LocationWarehouseID; one that exists stays where it is.
class frmAddLocation : public NameForm {
public:
    explicit frmAddLocation(QWidget* parent);

protected:
    void SetFields(AddRow& row) override;
};

/// Keeps the warehouses and the locations in them.
class frmLocations : public KeyGroupForm {
public:
    explicit frmLocations(QWidget* parent);

protected:
    qint64 ShowGroupDetails(qint64 id) override;
    void ShowEntryDetails(qint64 id, qint64 groupId) override;
};
