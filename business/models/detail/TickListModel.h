#pragma once

#include "business/models/detail/FlatListModel.h"
#include "model/TDmVariable.h"

namespace tessel::detail {

/// Internal: the run wizard's lists of variables, with a check box in the first column that mirrors the
/// variable's checked mark.
template<typename Derived>
class TickListModel : public FlatListModel<Derived, TDmVariable> {
public:
    /// Turns the mark over for Qt::CheckStateRole in column 0 of a variable that can be ticked; false for
    /// everything else.
    bool setData(const QModelIndex &index, const QVariant &, int role = Qt::EditRole) override
    {
        TDmVariable *variable = this->itemOf(index);
        if (!variable || !isTick(*variable, index.column(), role))
            return false;
        // Turned over, whatever was asked for: meant so.
        variable->setChecked(variable->getChecked() ? 0 : 1);
        emit this->dataChanged(index, index);
        return true;
    }

    /// No check box of its own: meant so, it is ticked through setData() alone.
    Qt::ItemFlags flags(const QModelIndex &index) const override
    {
        return index.isValid() ? QAbstractItemModel::flags(index) | Qt::ItemIsEnabled : Qt::NoItemFlags;
    }

protected:
    explicit TickListModel(QObject *parent)
        : FlatListModel<Derived, TDmVariable>(parent, FlatListModel<Derived, TDmVariable>::EditText::Hidden)
    {
    }

    /// Whether \a variable can be ticked at all.
    virtual bool isTickable(const TDmVariable &variable) const
    {
        Q_UNUSED(variable)
        return true;
    }

    QVariant markData(TDmVariable &variable, int column, int role) const override
    {
        if (!isTick(variable, column, role))
            return QVariant();
        return variable.getChecked() ? Qt::Checked : Qt::Unchecked;
    }

private:
    bool isTick(const TDmVariable &variable, int column, int role) const
    {
        return role == Qt::CheckStateRole && column == 0 && isTickable(variable);
    }
};

} // namespace tessel::detail
