#pragma once

#include "od/oddbentity.h"
#include "od/odunitsformatter.h"

#include <map>
#include <memory>
#include <vector>

/// One drawing in memory: tables of named records, layouts, blocks and their entities, every object under an id.
/// A new database holds layer "0", the linetypes "ByBlock", "ByLayer" and "Continuous", the dimension and the text
/// style "Standard", and the blocks "*Model_Space" and "*Paper_Space" with the layouts "Model" and "Layout1".
/// A database that a shared pointer owns lives as long as anyone holds it by keep().
class PLATFORM_EXPORT OdDbDatabase : public std::enable_shared_from_this<OdDbDatabase>
{
public:
    OdDbDatabase();
    ~OdDbDatabase();
    OdDbDatabase(const OdDbDatabase&) = delete;
    OdDbDatabase& operator=(const OdDbDatabase&) = delete;

    /// A share in the database; one that no shared pointer owns is merely pointed to.
    static std::shared_ptr<OdDbDatabase> keep(OdDbDatabase* database);

    // The records of a table that are not erased, in the order in which they were added.
    std::vector<OdDbLayerTableRecord*> layers() const;
    std::vector<OdDbLinetypeTableRecord*> linetypes() const;
    std::vector<OdDbDimStyleTableRecord*> dimStyles() const;
    std::vector<OdDbTextStyleTableRecord*> textStyles() const;
    std::vector<OdDbBlockTableRecord*> blocks() const;
    std::vector<OdDbLayout*> layouts() const;

    // The record of a name, without regard to case, or null. Names are looked up in a map, so renaming goes through
    // rename().
    OdDbLayerTableRecord* findLayer(const OdString& name) const;
    OdDbLinetypeTableRecord* findLinetype(const OdString& name) const;
    OdDbDimStyleTableRecord* findDimStyle(const OdString& name) const;
    OdDbTextStyleTableRecord* findTextStyle(const OdString& name) const;
    OdDbBlockTableRecord* findBlock(const OdString& name) const;

    // Adding a record whose name stands already in its table gives the record that stands there.
    OdDbLayerTableRecord* addLayer(const OdString& name);
    OdDbLinetypeTableRecord* addLinetype(const OdString& name);
    OdDbDimStyleTableRecord* addDimStyle(const OdString& name);
    OdDbTextStyleTableRecord* addTextStyle(const OdString& name);
    OdDbBlockTableRecord* addBlock(const OdString& name);
    /// A layout over a new paper space block, or over `block` when one is given.
    OdDbLayout* addLayout(const OdString& name, OdDbBlockTableRecord* block = nullptr);

    OdDbViewport* addViewport();

    /// Gives a record another name. False, with nothing changed, when another record of its table has it already.
    bool rename(OdDbSymbolTableRecord& record, const OdString& name);

    OdDbBlockTableRecord* modelSpace() const { return m_modelSpace; }

    /// Appends an entity to a block; an entity without a layer goes to layer "0".
    template <typename T>
    T* addEntity(std::unique_ptr<T> entity, OdDbBlockTableRecord* block)
    {
        T* result = entity.get();
        appendEntity(std::move(entity), block);
        return result;
    }

    OdDbObject* objectAt(std::uint32_t index) const;

    OdUnitsFormatter& formatter() { return m_formatter; }
    const OdUnitsFormatter& formatter() const { return m_formatter; }

    /// The layer that new entities get (initially layer "0").
    OdDbObjectId currentLayer() const { return m_currentLayer; }
    void setCurrentLayer(OdDbObjectId layer) { m_currentLayer = layer; }
    // What else new entities get: initially all by layer.
    const OdCmColor& getCECOLOR() const { return m_currentColor; }
    void setCECOLOR(const OdCmColor& color) { m_currentColor = color; }
    OdDbObjectId getCELTYPE() const { return m_currentLinetype; }
    void setCELTYPE(const OdDbObjectId& linetype) { m_currentLinetype = linetype; }
    int getCELWEIGHT() const { return m_currentLineWeight; }
    void setCELWEIGHT(int lineWeight) { m_currentLineWeight = lineWeight; }
    /// What the lineweight "by default" means, in hundredths of a millimetre.
    int getLWDEFAULT() const { return m_defaultLineWeight; }
    void setLWDEFAULT(int lineWeight) { m_defaultLineWeight = lineWeight; }
    /// What the dashes of all linetypes are multiplied by; above zero.
    double getLTSCALE() const { return m_linetypeScale; }
    void setLTSCALE(double scale) { m_linetypeScale = scale; }
    /// The style of new dimensions and leaders (initially "Standard").
    OdDbObjectId getDIMSTYLE() const { return m_currentDimStyle; }
    void setDIMSTYLE(const OdDbObjectId& dimStyle) { m_currentDimStyle = dimStyle; }

    /// Whether the model is shown and not a sheet.
    bool getTILEMODE() const { return m_tileMode; }
    void setTILEMODE(bool tileMode) { m_tileMode = tileMode; }
    /// The block of the sheet that was shown last (initially that of "Layout1").
    OdDbObjectId getPaperSpaceId() const { return m_paperSpace; }
    void setPaperSpaceId(const OdDbObjectId& block) { m_paperSpace = block; }

private:
    template <typename T>
    struct Table
    {
        std::vector<T*> records;           // owned by m_objects
        std::map<std::wstring, T*> byName; // the key is the name in lower case
    };

    template <typename T>
    T* add(Table<T>& table, const OdString& name);
    OdDbObjectId store(std::unique_ptr<OdDbObject> object);
    void appendEntity(std::unique_ptr<OdDbEntity> entity, OdDbBlockTableRecord* block);

    std::vector<std::unique_ptr<OdDbObject>> m_objects;
    Table<OdDbLayerTableRecord> m_layers;
    Table<OdDbLinetypeTableRecord> m_linetypes;
    Table<OdDbDimStyleTableRecord> m_dimStyles;
    Table<OdDbTextStyleTableRecord> m_textStyles;
    Table<OdDbBlockTableRecord> m_blocks;
    Table<OdDbLayout> m_layouts;
    OdDbBlockTableRecord* m_modelSpace = nullptr; // not owned
    OdDbObjectId m_currentLayer;
    OdCmColor m_currentColor;
    OdDbObjectId m_currentLinetype;
    int m_currentLineWeight = OdDb::kLnWtByLayer;
    int m_defaultLineWeight = 25;
    double m_linetypeScale = 1.0;
    OdDbObjectId m_currentDimStyle;
    bool m_tileMode = true;
    OdDbObjectId m_paperSpace;
    OdUnitsFormatter m_formatter;
};
