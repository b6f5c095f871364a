#include "FilterAlgorithm.h"

#include "response/ResponseCurve.h"
#include "response/ResponseState.h"

namespace tamble::common {

using response::FrequencyGrid;
using response::RecordModel;
using response::ResponseState;

namespace {

void fitGrid(ResponseState &state, const BodePlotCalculation &block)
{
    const FrequencyGrid::Key key{block.lowestFrequency, block.highestFrequency, block.sampleRate, block.resolution};
    if (key == state.grid.key())
        return;
    state.grid.rebuild(key);
    state.curveModels.clear();
}

} // namespace

ResponseState &FilterAlgorithm::fittingState(BodePlotCalculation &block)
{
    auto &state = block.results.m_state;
    if (!state)
        state = std::make_unique<ResponseState>();
    fitGrid(*state, block);
    return *state;
}

void FilterAlgorithm::calculateBodePlotLogarithmic(BodePlotCalculation &block, bool single, unsigned index)
{
    ResponseState &state = fittingState(block);
    std::vector<FilterResponse> &curves = block.results.items;
    std::vector<RecordModel> &models = state.curveModels;

    const std::size_t count = block.items.size();
    const bool fits = models.size() == count && curves.size() == count;
    models.resize(count);
    curves.resize(count);
    for (std::size_t i = 0; i < count; ++i) {
        if (single && fits && i != index)
            continue;
        // An unchanged record keeps its curve.
        if (models[i].update(block.items[i], state.grid)) {
            response::evaluateCurve(models[i], state.grid, curves[i]);
            state.sum.curveChanged(i);
        }
    }
    state.sum.sum(curves, models, state.grid.size(), block.results.aggregated);
}

void FilterAlgorithm::calculateAggregatedLevel(BodePlotCalculation &block, std::vector<double> &level)
{
    ResponseState &state = fittingState(block);
    state.levelModels.resize(block.items.size());
    for (std::size_t i = 0; i < block.items.size(); ++i)
        state.levelModels[i].update(block.items[i], state.grid);
    state.product.evaluate(state.levelModels, state.grid, level);
}

} // namespace tamble::common
